#include <Settings/SettingsDistortion.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectTwirl, m_Params, m_Intensity)
SETTINGS_DEFINE(SettingsEffectVertigo, m_Params, m_Intensity)
SETTINGS_DEFINE(SettingsEffectFishEye, m_Deviation, m_Intensity)
SETTINGS_DEFINE(SettingsEffectLensDistortion, m_Intensity, m_Distortion, m_MemberCount, m_Zoom)
SETTINGS_DEFINE(SettingsEffectCameraShake, m_Settings, m_Intensity)
SETTINGS_DEFINE(SettingsEffectChromaticAberration, m_Intensity)

} // namespace Quoril::Proc
