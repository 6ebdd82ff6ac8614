#include <effects/archive/ColorCorrection.h>

#include "Register.h"

EFFECTS_COLOR_CORRECTION(EFFECT_KEY)
EFFECTS_COLOR_CORRECTION(EFFECT_REGISTER)
