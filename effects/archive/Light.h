#pragma once

#include <effects/archive/Base.h>
#include <effects/Light.h>

namespace Effect {

EFFECT_FIELDS(FlyingObjects, VideoEffect, preset)
EFFECT_FIELDS(LensFlare, VideoEffect, Presets)
EFFECT_FIELDS(LightLeaks, VideoEffect, Presets)
EFFECT_FIELDS(VignetteFilter, VideoEffect, preset)

} // namespace Effect
