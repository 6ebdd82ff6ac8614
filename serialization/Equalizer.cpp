#include <effects/archive/Equalizer.h>

#include "Register.h"

EFFECTS_EQUALIZER(EFFECT_KEY)
EFFECTS_EQUALIZER(EFFECT_REGISTER)
