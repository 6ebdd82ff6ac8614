#pragma once

#include <effects/archive/Base.h>
#include <effects/Equalizer.h>

namespace Effect {

template <class Archive> void AudioEqualizer::BandEq::serialize(Archive & archive)
{
    fields(archive, field("centralFrequency", centralFrequency), field("gain", gain));
}

template <class Archive> void AudioEqualizer::serialize(Archive & archive)
{
    // The bands come first, unlike in the class.
    fields<AudioFilter>(
        archive, *this, field("multiband", multiband), field("preset", preset), field("presetName", presetName));
}

} // namespace Effect
