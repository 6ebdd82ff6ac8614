#pragma once

#include <effects/archive/Base.h>
#include <effects/Dynamics.h>

namespace Effect {

/// The content of either processor.
template <class Archive, class Dynamics> void dynamicsFields(Archive & archive, Dynamics & effect)
{
    fields<AudioEffect>(archive, effect, field("detection", effect.detection), field("link", effect.link),
        field("gainIn", effect.gainIn), field("threshold", effect.threshold), field("ratio", effect.ratio),
        field("attack", effect.attack), field("release", effect.release), field("gainOut", effect.gainOut),
        field("knee", effect.knee));
}

template <class Archive> void AudioNoiseGate::serialize(Archive & archive)
{
    dynamicsFields(archive, *this);
}

template <class Archive> void AudioCompressor::serialize(Archive & archive)
{
    dynamicsFields(archive, *this);
}

} // namespace Effect
