#include <Settings/SettingsColor.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectAutoContrast)
SETTINGS_DEFINE(SettingsEffectSaturation)
SETTINGS_DEFINE(SettingsEffectAutoWhiteBalance)
SETTINGS_DEFINE(SettingsEffectMagicEnhance2)
SETTINGS_DEFINE(SettingsEffectGIMPColorize)
SETTINGS_DEFINE(SettingsEffectGIMPColorTemperature)
SETTINGS_DEFINE(SettingsEffectGIMPColorCorrection)
SETTINGS_DEFINE(SettingsEffectColorBalance)
SETTINGS_DEFINE(SettingsEffectGIMPHueSaturation)
SETTINGS_DEFINE(SettingsEffectGIMPShadowsHightlights)

} // namespace Quoril::Proc
