/// @file
/// Frames on the picture that highlight or conceal their inside.
#pragma once

#include <cstdint>
#include <deque>

#include <EditorModel/Transform.h>
#include <effects/Base.h>

#include <QString>

namespace Effect {

/// A frame on the picture that stays in place or follows a motion track. It is a record, not an effect.
struct EFFECTS_API Frame : Serialize::ISerializable
{
    EFFECT_CLASS(Frame)

    /// The form of a frame. Other numbers count as 0.
    enum class Shape : std::int32_t
    {
        Rectangle = 0,
        Ellipse = 1
    };

    /// The known values of `shape`.
    EFFECTS_HIDDEN static constexpr Choice shapeChoices[] = {{0, "Rectangle", "Rectangle"}, {1, "Ellipse", "Ellipse"}};

    Shape shape = Shape::Rectangle; ///< form of the frame
    /// Places the frame while it follows no track; the identity makes it as large as the picture. By default it is
    /// half as wide and half as high, in the middle.
    Types::Transform transform{0.5, 0, 0, 0.5, 0, 0, 0, 0, 1};
    bool outline = false;                  ///< whether the engine draws the edge of the frame
    QString trackingId{QLatin1String("")}; ///< identifier of the motion track; empty for a frame that stays in place
    Types::Transform trackingTransform;    ///< places the frame in the tracked rectangle; the identity fills it

    static constexpr auto describe()
    {
        return description("A frame on the picture that stays in place or follows a motion track.",
            parameter("shape", &Frame::shape)
                .label("Shape")
                .text("Form of the framed area")
                .choices(shapeChoices)
                .fallback(0),
            parameter("transform", &Frame::transform)
                .label("Placement")
                .text("Size and position of the frame while it follows no track"),
            parameter("outline", &Frame::outline).label("Outline").text("Draws the edge of the frame"),
            parameter("trackingId", &Frame::trackingId)
                .label("Motion track")
                .text("Identifier of the track to follow; empty for a frame that stays in place"),
            parameter("trackingTransform", &Frame::trackingTransform)
                .label("Placement on track")
                .text("Size and position of the frame within the tracked rectangle"));
    }
};

/// A frame that keeps its inside as it is. What lies outside of all such frames is the background.
struct EFFECTS_API FrameHighlight : Frame
{
    EFFECT_CLASS(FrameHighlight)

    FrameHighlight * setShape(Shape value);
    FrameHighlight * setOutline(bool value);
    FrameHighlight * setTrackingId(QString const & value);
    FrameHighlight * setTrackingTransform(Types::Transform const & value);
    FrameHighlight * setTranform(Types::Transform value);

    /// Compares shape, transform and outline: frames that look alike are equal even if they follow different tracks.
    bool operator==(FrameHighlight const & other) const;
    bool operator!=(FrameHighlight const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("Keeps the picture inside the frame as it is, while the rest becomes background.");
    }
};

/// A frame that hides its inside.
struct EFFECTS_API FrameConceal : Frame
{
    EFFECT_CLASS(FrameConceal)

    /// How the inside is hidden. Other numbers count as 0.
    enum class Method : std::int32_t
    {
        Fill = 0,
        Blur = 1,
        Pixelate = 2
    };

    /// The known values of `method`.
    EFFECTS_HIDDEN static constexpr Choice methodChoices[] = {
        {0, "Fill", "Fill"}, {1, "Blur", "Blur"}, {2, "Pixelate", "Pixelate"}};

    Method method = Method::Pixelate; ///< how the inside is hidden
    double opacity = 1.0;             ///< of what hides the inside, from 0 to 1; values beyond are passed on
    double smoothness = 0.0;          ///< softness of the frame's edge; 0 is sharp
    double pixelSize = 0.1;           ///< size of the squares, relative to the picture

    FrameConceal * setShape(Shape value);
    FrameConceal * setOutline(bool value);
    FrameConceal * setTrackingId(QString const & value);
    FrameConceal * setTrackingTransform(Types::Transform const & value);
    FrameConceal * setTranform(Types::Transform value);
    FrameConceal * setMethod(Method value);
    FrameConceal * setOpacity(double value);
    FrameConceal * setSmoothness(double value);
    FrameConceal * setPixelSize(double value);

    /// Compares method, shape, transform, outline, opacity and smoothness, the numbers with `fuzzyEqual`. The pixel
    /// size and the motion track are not compared.
    bool operator==(FrameConceal const & other) const;
    bool operator!=(FrameConceal const & other) const { return !(*this == other); }

    static constexpr auto describe()
    {
        return description("Hides the picture inside the frame.",
            parameter("method", &FrameConceal::method)
                .label("Method")
                .text("How the inside is hidden")
                .choices(methodChoices)
                .fallback(0),
            parameter("opacity", &FrameConceal::opacity)
                .label("Opacity")
                .text("0 hides nothing, 1 hides the inside completely")
                .range(0, 1)
                .beyond(Beyond::Passed),
            parameter("smoothness", &FrameConceal::smoothness)
                .label("Softness")
                .text("Higher blurs the edge of the frame more; the stock goes up to 0.2")
                .unit(Unit::engine)
                .suggest(0, 0.2),
            parameter("pixelSize", &FrameConceal::pixelSize)
                .label("Pixel size")
                .text("Higher makes larger squares, relative to the picture; the stock uses 0.06 to 0.1")
                .suggest(0.06, 0.1));
    }
};

/// Highlights or conceals areas of the picture. All highlight frames share one background; each conceal frame hides its
/// own inside. The intensity is ignored.
struct EFFECTS_API Mask : VideoEffect
{
    EFFECT_CLASS(Mask)
    Mask();

    /// What covers the background, which is all that lies outside of the highlight frames. Other numbers count as 0.
    enum class BackgroundFill : std::int32_t
    {
        Color = 0, ///< black
        Blur = 1
    };

    /// The known values of `backgroundFill`.
    EFFECTS_HIDDEN static constexpr Choice backgroundFillChoices[] = {{0, "Color", "Black"}, {1, "Blur", "Blur"}};

    /// @{
    /// Without highlight frames there is no background, and these have no effect.
    BackgroundFill backgroundFill = BackgroundFill::Color; ///< what covers the background
    double backgroundOpacity = 0.5;                        ///< of the fill, from 0 to 1; values beyond are passed on
    double backgroundSmoothness = 0.0;                     ///< softness of the frames' edges; 0 is sharp
    /// @}
    std::deque<FrameHighlight> highlightFrames; ///< areas that stay as they are; they share one background
    std::deque<FrameConceal> concealFrames;     ///< areas that are hidden, each in its own way

    Mask * setBackgroundFill(BackgroundFill value);
    Mask * setBackgroundOpacity(double value);
    Mask * setBackgroundSmoothness(double value);
    /// @{
    /// Appends a copy of the frame, and returns this effect.
    Mask * addFrame(FrameHighlight const & frame);
    Mask * addFrame(FrameConceal const & frame);
    /// @}
    /// @{
    /// Removes all frames of the kind, and returns this effect.
    Mask * clearHighlightFrames();
    Mask * clearConcealFrames();
    /// @}

    static constexpr auto describe()
    {
        return description("Highlights or hides areas of the picture. The areas can follow a motion track.",
            parameter("backgroundFill", &Mask::backgroundFill)
                .label("Background")
                .text("What covers the picture outside of the highlighted areas")
                .choices(backgroundFillChoices)
                .fallback(0),
            parameter("backgroundOpacity", &Mask::backgroundOpacity)
                .label("Background opacity")
                .text("0 leaves the surroundings visible, 1 covers them completely")
                .range(0, 1)
                .beyond(Beyond::Passed),
            parameter("backgroundSmoothness", &Mask::backgroundSmoothness)
                .label("Background softness")
                .text("Higher blurs the edges of the highlighted areas more; the stock goes up to 0.5")
                .unit(Unit::engine)
                .suggest(0, 0.5),
            parameter("highlightFrames", &Mask::highlightFrames)
                .label("Highlighted areas")
                .text("Frames whose inside stays as it is"),
            parameter("concealFrames", &Mask::concealFrames)
                .label("Hidden areas")
                .text("Frames that hide their inside, each in its own way"));
    }
};

} // namespace Effect
