#include <effects/archive/Dynamics.h>

#include "Register.h"

EFFECTS_DYNAMICS(EFFECT_KEY)
EFFECTS_DYNAMICS(EFFECT_REGISTER)
