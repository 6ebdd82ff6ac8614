#include <effects/archive/Distortion.h>

#include "Register.h"

EFFECTS_DISTORTION(EFFECT_KEY)
EFFECTS_DISTORTION(EFFECT_REGISTER)
