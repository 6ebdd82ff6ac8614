#pragma once

#include <effects/archive/Base.h>
#include <effects/Blur.h>

namespace Effect {

template <class Archive> void Blur::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void BokehBlur::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("preset", preset));
}

template <class Archive> void MotionBlur::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void TiltShift::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("a1", a1), field("b1", b1), field("c1", c1), field("a2", a2),
        field("b2", b2), field("c2", c2), field("smns", smns));
}

template <class Archive> void Sharpen::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

} // namespace Effect
