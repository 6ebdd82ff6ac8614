#include <Settings/SettingsRetro.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectRetroArtefacts)
SETTINGS_DEFINE(SettingsEffectRetroColors)
SETTINGS_DEFINE(SettingsEffectVHS)
SETTINGS_DEFINE(SettingsEffectTelevision70s)
SETTINGS_DEFINE(SettingsEffectGlitchMpeg)
SETTINGS_DEFINE(SettingsEffectGlitchSecurityCam)
SETTINGS_DEFINE(SettingsEffectFilmStrip)

} // namespace Quoril::Proc
