#include <effects/Dynamics.h>

#include <effects/Identity.h>

namespace Effect {

AudioDynamics::AudioDynamics(QString const & effectId, double kneeWidth)
    : AudioEffect(effectId, effectId)
    , knee(kneeWidth)
{}

// The two knees differ from the sixth place on, and saved effects rely on each as it is.

AudioNoiseGate::AudioNoiseGate()
    : AudioDynamics(Id::NoiseGate, 2.828427125)
{
    tag = Tags::tagAudioNoiseGate;
    intensity = 0.94;
}

AudioCompressor::AudioCompressor()
    : AudioDynamics(Id::Compressor, 2.82843)
{
    tag = Tags::tagAudioCompressor;
}

EFFECT_FILTER_OVERRIDES(AudioNoiseGate, Tags::tagAudioNoiseGate)
EFFECT_FILTER_OVERRIDES(AudioCompressor, Tags::tagAudioCompressor)

double AudioNoiseGate::range() const
{
    return 1 - intensity;
}

void AudioNoiseGate::setRange(double value)
{
    intensity = 1 - value;
}

} // namespace Effect
