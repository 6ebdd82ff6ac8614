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

SETTINGS_DEFINE(SettingsAudioEqualizer, m_Multiband, m_Intensity)
SETTINGS_DEFINE(SettingsAudioGate, m_Threshold, detection, link, m_LevelIn, m_Intensity, m_Ratio, m_AttackMs,
    m_ReleaseMs, m_Makeup, m_Knee)
SETTINGS_DEFINE(SettingsAudioCompressor, m_Intensity, detection, link, m_LevelIn, m_Threshold, m_Ratio, m_Attack,
    m_Release, m_Makeup, m_Knee)
SETTINGS_DEFINE(SettingsAudioFlanger, m_Intensity, shape, interpolation, m_Delay, m_Depth, m_Regen, m_Speed, m_Phase)
SETTINGS_DEFINE(SettingsAudioVibrato, m_Intensity, m_Frequency)
SETTINGS_DEFINE(SettingsAudioDistortion, m_Intensity, type, m_Tone, m_Boost)
SETTINGS_DEFINE(SettingsAudioReverberationImpulseResponse, m_ReverberationTime, m_Delay, m_SlpfFrequency, modeA, modeB,
    modeC, m_DryGain, m_WetGain)
SETTINGS_DEFINE(SettingsAudioPitch, m_Pitch, m_Intensity)
SETTINGS_DEFINE(SettingsAudioRadio, m_EqSettings, m_CracklePrecision, m_NoiseLevel, m_Intensity)
SETTINGS_DEFINE(SettingsAudioRobot, m_Level, m_PitchSettings, m_Intensity)
SETTINGS_DEFINE(SettingsAudioEcho, m_GainInOut, m_Echos, m_Intensity)
SETTINGS_DEFINE(SettingsAudioNoiseSuppress, m_Level)
SETTINGS_DEFINE(SettingsFilterResample, channelCount)

} // namespace Quoril::Proc
