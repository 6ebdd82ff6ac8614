#include <Settings/SettingsTransform.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectTransform)
SETTINGS_DEFINE(SettingsEffectMirror)
SETTINGS_DEFINE(SettingsEffectFixVertVideo)

} // namespace Quoril::Proc
