#include <Settings/SettingsRetro.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectRetroArtefacts, shake, vignetting, grain, scratches, rollerTrack, m_Intensity)
SETTINGS_DEFINE(SettingsEffectRetroColors, m_Intensity, type)
SETTINGS_DEFINE(SettingsEffectVHS, m_Params, m_Intensity)
SETTINGS_DEFINE(SettingsEffectTelevision70s, m_Intensity, m_StripesWidth)
SETTINGS_DEFINE(SettingsEffectGlitchMpeg, m_Intensity)
SETTINGS_DEFINE(SettingsEffectGlitchSecurityCam, m_Intensity, m_ConstDistortion, m_RandDistortion)
SETTINGS_DEFINE(SettingsEffectFilmStrip, m_Type)

} // namespace Quoril::Proc
