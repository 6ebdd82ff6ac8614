#pragma once

#include <effects/archive/Base.h>
#include <effects/Shaders.h>

namespace Effect {

EFFECT_FIELDS(Lut, VideoEffect)
EFFECT_FIELDS(ShaderISF, VideoEffect, inputs)
EFFECT_FIELDS(ExternalShader, VideoEffect, apiVersion, supportsIntensity, shaderResource, auxImageResource)

} // namespace Effect
