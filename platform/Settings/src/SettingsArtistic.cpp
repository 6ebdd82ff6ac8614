#include <Settings/SettingsArtistic.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectOilPaint)
SETTINGS_DEFINE(SettingsEffectPopArt)
SETTINGS_DEFINE(SettingsEffectPosterize)
SETTINGS_DEFINE(SettingsEffectFindEdges)
SETTINGS_DEFINE(SettingsEffectHalfTone)
SETTINGS_DEFINE(SettingsEffectMosaic)
SETTINGS_DEFINE(SettingsEffectGlassMosaic)
SETTINGS_DEFINE(SettingsEffectErosion)
SETTINGS_DEFINE(SettingsEffectDiffuse)
SETTINGS_DEFINE(SettingsEffectStripes)
SETTINGS_DEFINE(SettingsEffectAddNoize)

} // namespace Quoril::Proc
