#include <Settings/SettingsColorFilter.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectColorBrush)
SETTINGS_DEFINE(SettingsEffectColorFilter)
SETTINGS_DEFINE(SettingsEffectColorMixBurn)
SETTINGS_DEFINE(SettingsEffectColorSelect)
SETTINGS_DEFINE(SettingsEffectColorMixExchange)
SETTINGS_DEFINE(SettingsEffectColorMixField)
SETTINGS_DEFINE(SettingsEffectInvert)

} // namespace Quoril::Proc
