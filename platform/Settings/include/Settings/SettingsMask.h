/// @file
/// Settings of the mask.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include <Settings/Members.h>
#include <Utils/Matrix3x3.h>

namespace Quoril::Proc {

/// Highlights or conceals regions of the picture, whose frames are functions of time.
class SETTINGS_EXPORT SettingsEffectMask final : public Settings
{
    SETTINGS_CLASS(SettingsEffectMask)

    /// A frame at one moment.
    struct FrameMask
    {
        std::int32_t shape = 0;  ///< 0 a rectangle, 1 an ellipse
        Core::Matrix3x3 matrix;  ///< places the unit frame, whose origin is the middle of the picture
        std::int32_t method = 0; ///< of concealing: 0 fills, 1 blurs, 2 makes pixels
        double opacity = 0;      ///< from 0 to 1
        bool outline = false;    ///< whether its edge is drawn
        double smoothness = 0;   ///< of its edge
    };

    /// Given a position in the effect, from 0 to 1 of its length, the frame there; null where there is none. The engine
    /// may call it from any of its threads.
    using FrameFunctor = std::function<std::unique_ptr<FrameMask>(double)>;

    SETTING(FrameFunctors, std::vector<FrameFunctor>)
    SETTING(BackGColor, float, float, float, float) ///< red, green, blue, alpha, from 0 to 1
    SETTING(FrameColor, float, float, float, float) ///< of the outline
    SETTINGS_FIELD(kind, std::int32_t)              ///< 0 conceals the frames, 1 highlights them
    SETTINGS_FIELD(pixelSize, double)
    SETTINGS_FIELD(backgroundOpacity, double)
    SETTINGS_FIELD(frameParameter, double)
    SETTINGS_FIELD(backgroundSmoothness, double)
    SETTINGS_FIELD(backgroundFill, std::int32_t)
};

} // namespace Quoril::Proc
