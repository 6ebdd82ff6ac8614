#include <effects/archive/Blur.h>

#include "Register.h"

EFFECTS_BLUR(EFFECT_KEY)
EFFECTS_BLUR(EFFECT_REGISTER)
