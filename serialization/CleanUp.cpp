#include <effects/archive/CleanUp.h>

#include "Register.h"

EFFECTS_CLEAN_UP(EFFECT_KEY)
EFFECTS_CLEAN_UP(EFFECT_REGISTER)
