#pragma once

#include <effects/archive/Base.h>
#include <effects/Light.h>

namespace Effect {

template <class Archive> void FlyingObjects::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("preset", preset));
}

template <class Archive> void LensFlare::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("Presets", Presets));
}

template <class Archive> void LightLeaks::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("Presets", Presets));
}

template <class Archive> void VignetteFilter::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("preset", preset));
}

} // namespace Effect
