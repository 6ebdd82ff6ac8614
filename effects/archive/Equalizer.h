#pragma once

#include <effects/archive/Base.h>
#include <effects/Equalizer.h>

namespace Effect {

template <class Archive> void AudioEqualizer::BandEq::serialize(Archive & archive)
{
    fields(archive, field("centralFrequency", centralFrequency), field("gain", gain));
}

// The bands come first, unlike in the class.
EFFECT_FIELDS(AudioEqualizer, AudioFilter, multiband, preset, presetName)

} // namespace Effect
