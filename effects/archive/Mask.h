#pragma once

#include <effects/archive/Base.h>
#include <effects/Mask.h>

namespace Effect {

template <class Archive> void Frame::serialize(Archive & archive)
{
    fields(archive, field("shape", shape), field("transform", transform), field("outline", outline),
        field("trackingId", trackingId), field("trackingTransform", trackingTransform));
}

EFFECT_FIELDS(FrameHighlight, Frame)
EFFECT_FIELDS(FrameConceal, Frame, method, opacity, smoothness, pixelSize)
EFFECT_FIELDS(
    Mask, VideoEffect, backgroundFill, backgroundOpacity, backgroundSmoothness, highlightFrames, concealFrames)

} // namespace Effect
