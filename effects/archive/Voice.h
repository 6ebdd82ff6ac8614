#pragma once

#include <effects/archive/Base.h>
#include <effects/Voice.h>

namespace Effect {

EFFECT_FIELDS(AudioPhone, AudioFilter, gainUp, gainDown, lBound, rBound)
EFFECT_FIELDS(AudioMuffle, AudioFilter, gainUp, gainDown, mean, dispersion)

template <class Archive> void AudioRadio::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("gainUp", gainUp), field("gainDown", gainDown), field("lBound", lBound),
        field("rBound", rBound), field("crackleP", cracklePrecision), field("noise", noiseLevel));
}

template <class Archive> void AudioEcho::Echo::serialize(Archive & archive)
{
    fields(archive, field("delay", delay), field("decay", decay));
}

EFFECT_FIELDS(AudioEcho, AudioFilter, gainIn, gainOut, echos)
EFFECT_FIELDS(AudioPitch, AudioFilter, pitch)
EFFECT_FIELDS(AudioRobot, AudioFilter, level, pitch)

} // namespace Effect
