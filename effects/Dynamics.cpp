#include <effects/Dynamics.h>

#include <effects/Identity.h>

namespace Effect {

// The two knees differ from the sixth place on, and saved effects rely on each as it is.

AudioNoiseGate::AudioNoiseGate()
    : AudioEffect(Id::NoiseGate, Id::NoiseGate)
{
    tag = Tags::tagAudioNoiseGate;
    intensity = 0.94;
    knee = 2.828427125;
}

AudioCompressor::AudioCompressor()
    : AudioEffect(Id::Compressor, Id::Compressor)
{
    tag = Tags::tagAudioCompressor;
    knee = 2.82843;
}

double AudioNoiseGate::range() const
{
    return 1 - intensity;
}

void AudioNoiseGate::setRange(double value)
{
    intensity = 1 - value;
}

} // namespace Effect
