#pragma once

#include <effects/archive/Base.h>
#include <effects/Mask.h>

namespace Effect {

template <class Archive> void Frame::serialize(Archive & archive)
{
    fields(archive, field("shape", shape), field("transform", transform), field("outline", outline),
        field("trackingId", trackingId), field("trackingTransform", trackingTransform));
}

template <class Archive> void FrameHighlight::serialize(Archive & archive)
{
    fields<Frame>(archive, *this);
}

template <class Archive> void FrameConceal::serialize(Archive & archive)
{
    fields<Frame>(archive, *this, field("method", method), field("opacity", opacity), field("smoothness", smoothness),
        field("pixelSize", pixelSize));
}

template <class Archive> void Mask::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("backgroundFill", backgroundFill),
        field("backgroundOpacity", backgroundOpacity), field("backgroundSmoothness", backgroundSmoothness),
        field("highlightFrames", highlightFrames), field("concealFrames", concealFrames));
}

} // namespace Effect
