#pragma once

#include <effects/archive/Base.h>
#include <effects/Modulation.h>

namespace Effect {

template <class Archive> void AudioDistortion::serialize(Archive & archive)
{
    fields<AudioEffect>(archive, *this, field("type", type), field("boost", boost), field("tone", tone));
}

template <class Archive> void AudioReverb::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("delay", delay), field("duration", duration),
        field("dryWetBalance", dryWetBalance), field("frequency", frequency));
}

template <class Archive> void AudioFlanger::serialize(Archive & archive)
{
    fields<AudioEffect>(archive, *this, field("shape", shape), field("interpolation", interpolation),
        field("delay", delay), field("depth", depth), field("regen", regen), field("speed", speed),
        field("phase", phase));
}

template <class Archive> void AudioVibrato::serialize(Archive & archive)
{
    fields<AudioEffect>(archive, *this, field("frequencyHz", frequencyHz));
}

} // namespace Effect
