#include <Settings/SettingsDistortion.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectTwirl)
SETTINGS_DEFINE(SettingsEffectVertigo)
SETTINGS_DEFINE(SettingsEffectFishEye)
SETTINGS_DEFINE(SettingsEffectLensDistortion)
SETTINGS_DEFINE(SettingsEffectCameraShake)
SETTINGS_DEFINE(SettingsEffectChromaticAberration)

} // namespace Quoril::Proc
