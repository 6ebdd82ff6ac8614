/// @file
/// Effects that place one picture over another or make parts of a picture transparent.
#pragma once

#include <cstdint>

#include <EditorModel/Transform.h>
#include <effects/Base.h>

namespace Effect {

/// Shows a picture within another one.
struct EFFECTS_API PictureInPicture : VideoEffect
{
    EFFECT_CLASS(PictureInPicture)
    PictureInPicture();

    Types::Transform transform; ///< places the inner picture; the default, identity, shows it in full size

    PictureInPicture * setTransform(Types::Transform const & value);

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Shows a small picture on top of another one.",
            parameter("transform", &PictureInPicture::transform)
                .label("Placement")
                .text("Size and position of the inner picture; by default it fills the frame"));
    }
};

/// Shows a part of the picture in a part of the frame, so that two such effects can share the frame.
struct EFFECTS_API SideBySide : VideoEffect
{
    EFFECT_CLASS(SideBySide)
    SideBySide();

    /// The part of the picture that is shown. By default, the middle half of its width.
    Types::Transform transformSrc{0.5, 0, 0, 1, 0, 0, 0, 0, 1};
    /// The part of the frame that it fills. By default, the left half.
    Types::Transform transformDst{0.5, 0, 0, 1, 0, 0, -0.25, 0, 1};

    SideBySide * setTransformSrc(Types::Transform const & value);
    SideBySide * setTransformDst(Types::Transform const & value);

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Shows a part of the picture in a part of the frame, so that clips can share the screen.",
            parameter("transformSrc", &SideBySide::transformSrc)
                .label("Source")
                .text("Area of the picture that is shown"),
            parameter("transformDst", &SideBySide::transformDst)
                .label("Target")
                .text("Area of the frame that the picture fills"));
    }
};

/// Makes the whole picture more or less transparent.
struct EFFECTS_API Opacity : VideoEffect
{
    EFFECT_CLASS(Opacity)
    Opacity();

    double opacity = 1.0; ///< from 0, invisible, to 1, opaque; values beyond that range are passed on

    Opacity * setOpacity(double value);

    static constexpr auto describe()
    {
        return description("Makes the whole picture transparent, so that what lies below shows through.",
            parameter("opacity", &Opacity::opacity)
                .label("Opacity")
                .text("0 is invisible, 1 covers everything below")
                .range(0, 1)
                .beyond(Beyond::Passed));
    }
};

/// Makes the parts of one colour transparent, as for a green screen.
struct EFFECTS_API ChromaKey : VideoEffect
{
    EFFECT_CLASS(ChromaKey)
    ChromaKey();

    std::uint32_t color = 0xFF00C800; ///< the colour, `0xAARRGGBB`, by default a green; the alpha is ignored
    int hueTolerance = 80;            ///< how far a hue may be from the colour's, in the engine's own unit
    int noiseLevel = 0;               ///< noise that is tolerated, in 256ths
    int harshness = 1;                ///< hardness of the edges, percent
    int transparency = 10;            ///< transparency, percent

    static constexpr auto describe()
    {
        return description("Makes one colour transparent, such as the green of a green screen.",
            parameter("color", &ChromaKey::color).label("Key colour").text("What becomes transparent").color(),
            parameter("hueTolerance", &ChromaKey::hueTolerance)
                .label("Hue tolerance")
                .text("Higher also removes colours that differ more from the key colour; the stock goes up to 100")
                .unit(Unit::engine)
                .suggest(0, 100),
            parameter("noiseLevel", &ChromaKey::noiseLevel)
                .label("Noise level")
                .text("Higher tolerates a noisier background; counted in 256ths")
                .suggest(0, 256),
            parameter("harshness", &ChromaKey::harshness)
                .label("Edge hardness")
                .text("Higher makes the edges of what remains harder")
                .unit(Unit::percent)
                .suggest(0, 100),
            parameter("transparency", &ChromaKey::transparency)
                .label("Transparency")
                .text("Higher lets more of the background show through")
                .unit(Unit::percent)
                .suggest(0, 100));
    }
};

/// What the blending effects have in common. The derived classes archive its fields.
struct EFFECTS_API ColorBlendingBase : VideoEffect
{
    /// How the two pictures are blended: 0 to 13, which the render engine defines. Other numbers count as 0.
    enum class Mode : std::int32_t
    {
    };

    /// The known values of `mode`.
    EFFECTS_HIDDEN static constexpr Choice modeChoices[] = {
        {0, "Mode0", "Mode 0"},
        {1, "Mode1", "Mode 1"},
        {2, "Mode2", "Mode 2"},
        {3, "Mode3", "Mode 3"},
        {4, "Mode4", "Mode 4"},
        {5, "Mode5", "Mode 5"},
        {6, "Mode6", "Mode 6"},
        {7, "Mode7", "Mode 7"},
        {8, "Mode8", "Mode 8"},
        {9, "Mode9", "Mode 9"},
        {10, "Mode10", "Mode 10"},
        {11, "Mode11", "Mode 11"},
        {12, "Mode12", "Mode 12"},
        {13, "Mode13", "Mode 13"},
    };

    /// Takes the identifier and the group; the mode is 5.
    ColorBlendingBase(QString const & effectId, QString const & group);

    Mode mode{5}; ///< how the pictures are blended
};

/// Lays a picture, which `resource` names, over the clip.
struct EFFECTS_API Overlay : ColorBlendingBase
{
    EFFECT_CLASS(Overlay)
    Overlay(); ///< mode 0

    /// Sets the picture, and the group to its name. Returns this effect.
    Overlay * setResourceID(Resource::ID const & value);

    bool hasIntensity() const override;

    static constexpr auto describe()
    {
        return description("Lays a picture over the clip, such as a frame or a play of shadows.", readsIntensity(),
            parameter("mode", &Overlay::mode)
                .label("Blend mode")
                .text("How the two pictures are mixed")
                .choices(modeChoices)
                .fallback(0));
    }
};

/// Blends the clip with the one below. Takes a second input.
struct EFFECTS_API ColorBlending : ColorBlendingBase
{
    EFFECT_CLASS(ColorBlending)
    ColorBlending();

    bool hasIntensity() const override; ///< false, although the engine receives the intensity
    bool isTwoInput() const override;

    static constexpr auto describe()
    {
        return description("Blends the clip with the one below it.", readsIntensity(),
            parameter("mode", &ColorBlending::mode)
                .label("Blend mode")
                .text("How the two pictures are mixed")
                .choices(modeChoices)
                .fallback(0));
    }
};

/// Takes the alpha of the picture from a second input. The tag is empty.
struct EFFECTS_API AlphaInserter : VideoEffect
{
    EFFECT_CLASS(AlphaInserter)
    AlphaInserter();

    bool isTwoInput() const override;

    static constexpr auto describe()
    {
        return description("Takes the transparency of the picture from a second picture.");
    }
};

} // namespace Effect
