#include <effects/archive/Artistic.h>

#include "Register.h"

EFFECTS_ARTISTIC(EFFECT_KEY)
EFFECTS_ARTISTIC(EFFECT_REGISTER)
