#pragma once

#include <effects/archive/Base.h>
#include <effects/Shaders.h>

namespace Effect {

template <class Archive> void Lut::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void ShaderISF::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("inputs", inputs));
}

template <class Archive> void ExternalShader::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("apiVersion", apiVersion), field("supportsIntensity", supportsIntensity),
        field("shaderResource", shaderResource), field("auxImageResource", auxImageResource));
}

} // namespace Effect
