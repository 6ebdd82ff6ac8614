#include <Settings/SettingsColor.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE_EMPTY(SettingsEffectAutoContrast)
SETTINGS_DEFINE_EMPTY(SettingsEffectSaturation)
SETTINGS_DEFINE(SettingsEffectAutoWhiteBalance, red, green, blue, alpha)
SETTINGS_DEFINE_EMPTY(SettingsEffectMagicEnhance2)
SETTINGS_DEFINE(SettingsEffectGIMPColorize, m_Red, m_Green, m_Blue, m_Intensity)
SETTINGS_DEFINE(SettingsEffectGIMPColorTemperature, m_OriginalTemperature, m_IntendedTemperature)
SETTINGS_DEFINE(SettingsEffectGIMPColorCorrection, m_Brightness, m_Contrast)
SETTINGS_DEFINE(SettingsEffectColorBalance, saturation, gamma)
SETTINGS_DEFINE(SettingsEffectGIMPHueSaturation, m_Hue, m_Intensity)
SETTINGS_DEFINE(SettingsEffectGIMPShadowsHightlights, m_Shadows, m_Highlights)

} // namespace Quoril::Proc
