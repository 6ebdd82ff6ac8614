#include <Settings/SettingsTransform.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectTransform, mode, matrix)
SETTINGS_DEFINE(SettingsEffectMirror, vertical, horizontal)
SETTINGS_DEFINE(SettingsEffectFixVertVideo, geometry)

} // namespace Quoril::Proc
