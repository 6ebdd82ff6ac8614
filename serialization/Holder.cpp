#include <effects/archive/Holder.h>

#include "Register.h"

EFFECTS_HOLDER(EFFECT_KEY)
EFFECTS_HOLDER(EFFECT_REGISTER)
