#include <Settings/SettingsAudio.h>

#include "MemberTable.h"

namespace Quoril::Proc {

template <> struct Parts<SettingsAudioEqualizer::BandEq>
{
    template <class Band> static auto of(Band & band) { return std::tie(band.centralFrequency, band.gain); }
};

template <> struct Parts<SettingsAudioEcho::Echo>
{
    template <class Echo> static auto of(Echo & echo) { return std::tie(echo.delay, echo.decay); }
};

SETTINGS_DEFINE(SettingsAudioEqualizer)
SETTINGS_DEFINE(SettingsAudioGate)
SETTINGS_DEFINE(SettingsAudioCompressor)
SETTINGS_DEFINE(SettingsAudioFlanger)
SETTINGS_DEFINE(SettingsAudioVibrato)
SETTINGS_DEFINE(SettingsAudioDistortion)
SETTINGS_DEFINE(SettingsAudioReverberationImpulseResponse)
SETTINGS_DEFINE(SettingsAudioPitch)
SETTINGS_DEFINE(SettingsAudioRadio)
SETTINGS_DEFINE(SettingsAudioRobot)
SETTINGS_DEFINE(SettingsAudioEcho)
SETTINGS_DEFINE(SettingsAudioNoiseSuppress)
SETTINGS_DEFINE(SettingsFilterResample)

} // namespace Quoril::Proc
