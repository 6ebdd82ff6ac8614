#include <effects/archive/Composition.h>

#include "Register.h"

EFFECTS_COMPOSITION(EFFECT_KEY)
EFFECTS_COMPOSITION(EFFECT_REGISTER)
