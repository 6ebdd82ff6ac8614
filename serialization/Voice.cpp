#include <effects/archive/Voice.h>

#include "Register.h"

EFFECTS_VOICE(EFFECT_KEY)
EFFECTS_VOICE(EFFECT_REGISTER)
