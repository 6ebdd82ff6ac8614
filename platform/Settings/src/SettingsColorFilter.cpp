#include <Settings/SettingsColorFilter.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectColorBrush, angle, size, rough, type, m_Intensity)
SETTINGS_DEFINE(SettingsEffectColorFilter, preset, intensity)
SETTINGS_DEFINE(SettingsEffectColorMixBurn, m_Strength)
SETTINGS_DEFINE(SettingsEffectColorSelect, m_Params, m_Intensity, red, green, blue)
SETTINGS_DEFINE(SettingsEffectColorMixExchange, m_ExchangeColor, m_Intensity)
SETTINGS_DEFINE(SettingsEffectColorMixField, m_Threshold, m_Contrast, m_FieldColor)
SETTINGS_DEFINE(SettingsEffectInvert, m_Intensity)

} // namespace Quoril::Proc
