#pragma once

#include <effects/archive/Base.h>
#include <effects/Voice.h>

namespace Effect {

template <class Archive> void AudioPhone::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("gainUp", gainUp), field("gainDown", gainDown), field("lBound", lBound),
        field("rBound", rBound));
}

template <class Archive> void AudioMuffle::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("gainUp", gainUp), field("gainDown", gainDown), field("mean", mean),
        field("dispersion", dispersion));
}

template <class Archive> void AudioRadio::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("gainUp", gainUp), field("gainDown", gainDown), field("lBound", lBound),
        field("rBound", rBound), field("crackleP", cracklePrecision), field("noise", noiseLevel));
}

template <class Archive> void AudioEcho::Echo::serialize(Archive & archive)
{
    fields(archive, field("delay", delay), field("decay", decay));
}

template <class Archive> void AudioEcho::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("gainIn", gainIn), field("gainOut", gainOut), field("echos", echos));
}

template <class Archive> void AudioPitch::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("pitch", pitch));
}

template <class Archive> void AudioRobot::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("level", level), field("pitch", pitch));
}

} // namespace Effect
