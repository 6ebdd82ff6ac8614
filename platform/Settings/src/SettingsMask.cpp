#include <Settings/SettingsMask.h>

#include "MemberTable.h"

namespace Quoril::Proc {

using FrameFunctors = std::vector<SettingsEffectMask::FrameFunctor>;

/// Told as what each function answers at some positions: near the end, not at it, where the effect is over.
template <> struct Form<Shared<FrameFunctors>> : HandleForm<Shared<FrameFunctors>>
{
    static Value toValue(Shared<FrameFunctors> const & functors)
    {
        Value::List list;
        for (auto const & functor : FrameFunctors(functors)) {
            Value::List frames;
            for (double const position : {0.0, 0.25, 0.5, 0.75, 0.9999}) {
                auto const frame = functor ? functor(position) : nullptr;
                frames.push_back(frame ? tellFrame(*frame) : Value());
            }
            list.emplace_back(std::move(frames));
        }
        return list;
    }
    static std::string expected() { return "functions, which only code can give"; }

private:
    static Value tellFrame(SettingsEffectMask::FrameMask const & frame)
    {
        return Value::Object{{"shape", frame.shape}, {"matrix", Form<Core::Matrix3x3>::toValue(frame.matrix)},
            {"method", frame.method}, {"opacity", frame.opacity}, {"outline", frame.outline},
            {"smoothness", frame.smoothness}};
    }
};

SETTINGS_DEFINE(SettingsEffectMask, m_FrameFunctors, m_BackGColor, m_FrameColor, kind, pixelSize, backgroundOpacity,
    frameParameter, backgroundSmoothness, backgroundFill)

} // namespace Quoril::Proc
