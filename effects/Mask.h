/// @file
/// Frames on the picture that highlight or conceal what is in them.
#pragma once

#include <cstdint>
#include <deque>

#include <EditorModel/Transform.h>
#include <effects/Base.h>

#include <QString>

namespace Effect {

/// A frame on the picture, which stands still or follows a motion track. It is a record, not an effect.
struct EFFECTS_API Frame : Serialize::ISerializable
{
    EFFECT_CLASS(Frame)

    /// Other numbers are taken as 0.
    enum class Shape : std::int32_t
    {
        Rectangle = 0,
        Ellipse = 1
    };

    Shape shape = Shape::Rectangle; ///< of its edge
    /// Places the frame, which fills the picture as it is, while there is no track. By default it has half the
    /// picture's size, in its middle.
    Types::Transform transform{0.5, 0, 0, 0.5, 0, 0, 0, 0, 1};
    bool outline = false;                  ///< whether the engine draws its edge
    QString trackingId{QLatin1String("")}; ///< of the motion track; empty for a frame that stands still
    Types::Transform trackingTransform;    ///< places the frame in the tracked rectangle

    static constexpr auto describe()
    {
        return description("A frame on the picture, which stands still or follows a motion track.",
            parameter("shape", &Frame::shape), parameter("transform", &Frame::transform),
            parameter("outline", &Frame::outline), parameter("trackingId", &Frame::trackingId),
            parameter("trackingTransform", &Frame::trackingTransform));
    }
};

/// A frame that keeps its inside as it is, while the rest of the picture is background.
struct EFFECTS_API FrameHighlight : Frame
{
    EFFECT_CLASS(FrameHighlight)

    FrameHighlight * setShape(Shape value);
    FrameHighlight * setOutline(bool value);
    FrameHighlight * setTrackingId(QString const & value);
    FrameHighlight * setTrackingTransform(Types::Transform const & value);
    FrameHighlight * setTranform(Types::Transform value);

    /// Compares shape, transform and outline: frames that look alike are equal, whatever they follow.
    bool operator==(FrameHighlight const & other) const;
    bool operator!=(FrameHighlight const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("A frame that keeps its inside as it is, while the rest of the picture is background.");
    }
};

/// A frame that hides its inside.
struct EFFECTS_API FrameConceal : Frame
{
    EFFECT_CLASS(FrameConceal)

    /// How the inside is hidden. Other numbers are taken as 0.
    enum class Method : std::int32_t
    {
        Fill = 0,
        Blur = 1,
        Pixelate = 2
    };

    Method method = Method::Pixelate; ///< of hiding
    double opacity = 1.0;             ///< from 0 to 1; values beyond are passed on
    double smoothness = 0.0;          ///< of the frame's edge
    double pixelSize = 0.1;           ///< of the picture

    FrameConceal * setShape(Shape value);
    FrameConceal * setOutline(bool value);
    FrameConceal * setTrackingId(QString const & value);
    FrameConceal * setTrackingTransform(Types::Transform const & value);
    FrameConceal * setTranform(Types::Transform value);
    FrameConceal * setMethod(Method value);
    FrameConceal * setOpacity(double value);
    FrameConceal * setSmoothness(double value);
    FrameConceal * setPixelSize(double value);

    /// Compares method, shape, transform, outline, opacity and smoothness, numbers with `fuzzyEqual`. Neither what
    /// the frames follow nor their pixel size is compared.
    bool operator==(FrameConceal const & other) const;
    bool operator!=(FrameConceal const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("A frame that hides its inside.", parameter("method", &FrameConceal::method),
            parameter("opacity", &FrameConceal::opacity), parameter("smoothness", &FrameConceal::smoothness),
            parameter("pixelSize", &FrameConceal::pixelSize));
    }
};

/// Frames on the picture. All highlight frames together leave one background; each conceal frame hides for itself. The
/// intensity has no effect.
struct EFFECTS_API Mask : VideoEffect
{
    EFFECT_CLASS(Mask)
    Mask();

    /// What becomes of the background. Other numbers are taken as 0.
    enum class BackgroundFill : std::int32_t
    {
        Color = 0,
        Blur = 1
    };

    BackgroundFill backgroundFill = BackgroundFill::Color; ///< what becomes of it
    double backgroundOpacity = 0.5;                        ///< from 0 to 1; values beyond are passed on
    double backgroundSmoothness = 0.0;                     ///< of the frames' edges
    std::deque<FrameHighlight> highlightFrames;            ///< together they leave one background
    std::deque<FrameConceal> concealFrames;                ///< each hides its own inside

    Mask * setBackgroundFill(BackgroundFill value);
    Mask * setBackgroundOpacity(double value);
    Mask * setBackgroundSmoothness(double value);
    /// @{
    /// Appends a copy of the frame, and returns this effect.
    Mask * addFrame(FrameHighlight const & frame);
    Mask * addFrame(FrameConceal const & frame);
    /// @}
    /// @{
    /// Drops all frames of the kind, and returns this effect.
    Mask * clearHighlightFrames();
    Mask * clearConcealFrames();
    /// @}

    static constexpr auto describe()
    {
        return description("Frames on the picture.", parameter("backgroundFill", &Mask::backgroundFill),
            parameter("backgroundOpacity", &Mask::backgroundOpacity),
            parameter("backgroundSmoothness", &Mask::backgroundSmoothness),
            parameter("highlightFrames", &Mask::highlightFrames), parameter("concealFrames", &Mask::concealFrames));
    }
};

} // namespace Effect
