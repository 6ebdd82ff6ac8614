#pragma once

#include <effects/archive/Base.h>
#include <effects/Geometry.h>

namespace Effect {

template <class Archive> void Crop::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("transform", transform));
}

template <class Archive> void Transpose::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("angle", angle));
}

template <class Archive> void FixVertVideo::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

} // namespace Effect
