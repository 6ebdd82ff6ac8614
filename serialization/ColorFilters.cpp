#include <effects/archive/ColorFilters.h>

#include "Register.h"

EFFECTS_COLOR_FILTERS(EFFECT_KEY)
EFFECTS_COLOR_FILTERS(EFFECT_REGISTER)
