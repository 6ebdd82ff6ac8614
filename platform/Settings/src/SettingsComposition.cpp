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

SETTINGS_DEFINE(SettingsEffectSubFrame)
SETTINGS_DEFINE(SettingsEffectOpacity)
SETTINGS_DEFINE(SettingsEffectChromakey)
SETTINGS_DEFINE(SettingsEffectColorBlender)
SETTINGS_DEFINE(SettingsEffectAlphaInserter)

} // namespace Quoril::Proc
