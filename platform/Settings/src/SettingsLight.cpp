#include <Settings/SettingsLight.h>

#include "ImageForm.h"
#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectFlyingObjects, m_Image, paramsHead, m_Intensity, m_ObjectsCount, m_Scale, firstValue,
    secondValue, m_MoveDirection, m_MoveSpeed, m_RotationSpeed, m_SwingRotationSpeed, thirdValue)
SETTINGS_DEFINE(SettingsEffectLensFlare, m_Intensity, preset)
SETTINGS_DEFINE(SettingsEffectLightLeaks, m_Intensity, preset)
SETTINGS_DEFINE(SettingsEffectVignetteFilter, firstMode, secondMode, thirdMode, m_Color, m_Params, m_Intensity)

} // namespace Quoril::Proc
