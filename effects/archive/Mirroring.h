#pragma once

#include <effects/archive/Base.h>
#include <effects/Mirroring.h>

namespace Effect {

EFFECT_FIELDS(Flip, VideoEffect, vertical, horizontal)
EFFECT_FIELDS(Mirror, VideoEffect, vertical, horizontal)

} // namespace Effect
