#include <effects/archive/Retro.h>

#include "Register.h"

EFFECTS_RETRO(EFFECT_KEY)
EFFECTS_RETRO(EFFECT_REGISTER)
