#pragma once

#include <effects/archive/Base.h>
#include <effects/Geometry.h>

namespace Effect {

EFFECT_FIELDS(Crop, VideoEffect, transform)
EFFECT_FIELDS(Transpose, VideoEffect, angle)
EFFECT_FIELDS(FixVertVideo, VideoEffect)

} // namespace Effect
