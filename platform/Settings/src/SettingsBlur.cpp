#include <Settings/SettingsBlur.h>

#include "ImageForm.h"
#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectBlurGaussian, m_Scale)
SETTINGS_DEFINE(SettingsEffectBokehBlur, m_Image, m_Intensity, m_Params)
SETTINGS_DEFINE(SettingsEffectMotionBlur, m_Scale)
SETTINGS_DEFINE(SettingsEffectTiltShiftQEM, m_Params, m_UpperLine, m_LowerLine)
SETTINGS_DEFINE(SettingsEffectSharpen, m_Level)

} // namespace Quoril::Proc
