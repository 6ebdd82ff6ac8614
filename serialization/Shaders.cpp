#include <effects/archive/Shaders.h>

#include "Register.h"

EFFECTS_SHADERS(EFFECT_KEY)
EFFECTS_SHADERS(EFFECT_REGISTER)
