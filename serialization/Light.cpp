#include <effects/archive/Light.h>

#include "Register.h"

EFFECTS_LIGHT(EFFECT_KEY)
EFFECTS_LIGHT(EFFECT_REGISTER)
