#include <effects/archive/Mirroring.h>

#include "Register.h"

EFFECTS_MIRRORING(EFFECT_KEY)
EFFECTS_MIRRORING(EFFECT_REGISTER)
