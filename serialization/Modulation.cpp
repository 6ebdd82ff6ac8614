#include <effects/archive/Modulation.h>

#include "Register.h"

EFFECTS_MODULATION(EFFECT_KEY)
EFFECTS_MODULATION(EFFECT_REGISTER)
