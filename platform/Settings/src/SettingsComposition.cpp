#include <Settings/SettingsComposition.h>

#include "MemberTable.h"

namespace Quoril::Proc {

template <> struct Parts<ColorF>
{
    template <class Color> static auto of(Color & color)
    {
        return std::tie(color.red, color.green, color.blue, color.alpha);
    }
};

SETTINGS_DEFINE(SettingsEffectSubFrame, srcLeft, srcTop, srcRight, srcBottom, dstLeft, dstTop, dstRight, dstBottom)
SETTINGS_DEFINE(SettingsEffectOpacity, opacity)
SETTINGS_DEFINE(SettingsEffectChromakey, m_Params, red, green, blue, alpha)
SETTINGS_DEFINE(SettingsEffectColorBlender, blendMode, m_Intensity, m_BaseColor)
SETTINGS_DEFINE_EMPTY(SettingsEffectAlphaInserter)

} // namespace Quoril::Proc
