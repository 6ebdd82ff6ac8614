#include <effects/archive/Base.h>

#include "Register.h"

EFFECTS_BASES(EFFECT_REGISTER)
