#include <Settings/SettingsBlur.h>

#include "ImageForm.h"
#include "MemberTable.h"

namespace Quoril::Proc {

SETTINGS_DEFINE(SettingsEffectBlurGaussian)
SETTINGS_DEFINE(SettingsEffectBokehBlur)
SETTINGS_DEFINE(SettingsEffectMotionBlur)
SETTINGS_DEFINE(SettingsEffectTiltShiftQEM)
SETTINGS_DEFINE(SettingsEffectSharpen)

} // namespace Quoril::Proc
