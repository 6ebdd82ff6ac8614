#include <effects/Modulation.h>

#include <effects/Identity.h>

namespace Effect {

AudioDistortion::AudioDistortion()
    : AudioEffect(Id::Distortion, Id::Distortion)
{
    tag = Tags::tagAudioDistortion;
    intensity = 0.5;
}

AudioFlanger::AudioFlanger()
    : AudioEffect(Id::Flanger, Id::Flanger)
{
    tag = Tags::tagAudioFlanger;
    intensity = 0.71;
}

AudioVibrato::AudioVibrato()
    : AudioEffect(Id::Vibrato, Id::Vibrato)
{
    tag = Tags::tagAudioVibrato;
    intensity = 0.8;
}

QString AudioReverb::defaultTag() const
{
    return Tags::tagAudioReverb;
}

} // namespace Effect
