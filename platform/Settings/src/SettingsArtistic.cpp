#include <Settings/SettingsArtistic.h>

#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectOilPaint, radius, m_Intensity)
SETTINGS_DEFINE(SettingsEffectPopArt, m_Intensity, m_Params)
SETTINGS_DEFINE(SettingsEffectPosterize, m_ColorsNumber, m_Intensity)
SETTINGS_DEFINE(SettingsEffectFindEdges, m_Params)
SETTINGS_DEFINE(SettingsEffectHalfTone, m_BackGroundRGB, m_DotRGB, m_Param)
SETTINGS_DEFINE(SettingsEffectMosaic, type, m_Amount, m_Intensity)
SETTINGS_DEFINE(SettingsEffectGlassMosaic, m_Params, m_Intensity)
SETTINGS_DEFINE(SettingsEffectErosion, m_Params)
SETTINGS_DEFINE(SettingsEffectDiffuse, m_Params, m_Intensity)
SETTINGS_DEFINE(SettingsEffectStripes, m_Count, m_Deep, m_Intensity)
SETTINGS_DEFINE(SettingsEffectAddNoize, type, m_Level)

} // namespace Quoril::Proc
