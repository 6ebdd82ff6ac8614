#include <effects/archive/Mask.h>

#include "Register.h"

EFFECTS_MASK(EFFECT_KEY)
EFFECTS_MASK(EFFECT_REGISTER)
