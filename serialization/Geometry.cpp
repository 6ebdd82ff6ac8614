#include <effects/archive/Geometry.h>

#include "Register.h"

EFFECTS_GEOMETRY(EFFECT_KEY)
EFFECTS_GEOMETRY(EFFECT_REGISTER)
