#include <Settings/SettingsLight.h>

#include "ImageForm.h"
#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectFlyingObjects)
SETTINGS_DEFINE(SettingsEffectLensFlare)
SETTINGS_DEFINE(SettingsEffectLightLeaks)
SETTINGS_DEFINE(SettingsEffectVignetteFilter)

} // namespace Quoril::Proc
