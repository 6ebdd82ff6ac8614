#pragma once

#include <effects/archive/Base.h>
#include <effects/ColorCorrection.h>

namespace Effect {

template <class Archive> void AutoContrast::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void AutoSaturation::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void WhiteBalance::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("color", color));
}

template <class Archive> void MagicEnhance::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

template <class Archive> void ManualEnhance::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("gamma", gamma), field("highlights", highlights),
        field("shadows", shadows), field("brightness", brightness), field("contrast", contrast),
        field("saturation", saturation), field("hue", hue), field("temperature", temperature), field("tint", tint));
}

} // namespace Effect
