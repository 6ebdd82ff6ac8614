#include <effects/Voice.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECT_FILTER(AudioPhone, AudioFilter, Id::AudioPhone, Tags::tagAudioPhone)
EFFECT_FILTER(AudioMuffle, AudioFilter, Id::AudioMuffle, Tags::tagAudioMuffle)
EFFECT_FILTER(AudioRadio, AudioFilter, Id::AudioRadio, Tags::tagAudioRadio)
EFFECT_FILTER(AudioEcho, AudioFilter, Id::AudioEcho, Tags::tagAudioEcho)
EFFECT_FILTER(AudioPitch, AudioFilter, Id::AudioPitch, Tags::tagAudioPitch)
EFFECT_FILTER(AudioRobot, AudioFilter, Id::AudioRobot, Tags::tagAudioRobot)

AudioEcho::Echo::Echo() = default;

AudioEcho::Echo::Echo(std::int32_t after, double share)
    : delay(after)
    , decay(share)
{}

} // namespace Effect
