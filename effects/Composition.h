/// @file
/// One picture over another, and pictures that are transparent in parts.
#pragma once

#include <cstdint>

#include <EditorModel/Transform.h>
#include <effects/Base.h>

namespace Effect {

/// A picture that is placed within another.
struct EFFECTS_API PictureInPicture : VideoEffect
{
    EFFECT_CLASS(PictureInPicture)
    PictureInPicture();

    Types::Transform transform; ///< places the inner picture; a default one shows it in full size

    PictureInPicture * setTransform(Types::Transform const & value);

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description(
            "A picture that is placed within another.", parameter("transform", &PictureInPicture::transform));
    }
};

/// A part of the picture, in a part of the frame: two such share the frame.
struct EFFECTS_API SideBySide : VideoEffect
{
    EFFECT_CLASS(SideBySide)
    SideBySide();

    /// The part of the picture that is shown: half of its width, from the middle.
    Types::Transform transformSrc{0.5, 0, 0, 1, 0, 0, 0, 0, 1};
    /// The part of the frame that it fills: the left half.
    Types::Transform transformDst{0.5, 0, 0, 1, 0, 0, -0.25, 0, 1};

    SideBySide * setTransformSrc(Types::Transform const & value);
    SideBySide * setTransformDst(Types::Transform const & value);

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("A part of the picture, in a part of the frame: two such share the frame.",
            parameter("transformSrc", &SideBySide::transformSrc), parameter("transformDst", &SideBySide::transformDst));
    }
};

/// Makes the whole picture transparent.
struct EFFECTS_API Opacity : VideoEffect
{
    EFFECT_CLASS(Opacity)
    Opacity();

    double opacity = 1.0; ///< from 0, which is not to be seen, to 1; values beyond are passed on

    Opacity * setOpacity(double value);

    static constexpr auto describe()
    {
        return description("Makes the whole picture transparent.", parameter("opacity", &Opacity::opacity));
    }
};

/// Makes the parts of one colour transparent.
struct EFFECTS_API ChromaKey : VideoEffect
{
    EFFECT_CLASS(ChromaKey)
    ChromaKey();

    std::uint32_t color = 0xFF00C800; ///< `0xAARRGGBB`, by default a green; the alpha plays no part
    int hueTolerance = 80;            ///< in the engine's own unit
    int noiseLevel = 0;               ///< of 256
    int harshness = 1;                ///< percent
    int transparency = 10;            ///< percent

    static constexpr auto describe()
    {
        return description("Makes the parts of one colour transparent.", parameter("color", &ChromaKey::color),
            parameter("hueTolerance", &ChromaKey::hueTolerance), parameter("noiseLevel", &ChromaKey::noiseLevel),
            parameter("harshness", &ChromaKey::harshness), parameter("transparency", &ChromaKey::transparency));
    }
};

/// What the blending effects have in common. Its fields are archived by the classes that derive from it.
struct EFFECTS_API ColorBlendingBase : VideoEffect
{
    /// How the two pictures are blended: 0 to 13. Others are taken as 0.
    enum class Mode : std::int32_t
    {
    };

    /// The identifier and the group; mode 5.
    ColorBlendingBase(QString const & effectId, QString const & group);

    Mode mode{5}; ///< of the blending
};

/// A picture from the stock, blended over the clip.
struct EFFECTS_API Overlay : ColorBlendingBase
{
    EFFECT_CLASS(Overlay)
    Overlay(); ///< mode 0

    /// Sets the picture, and the group to its name.
    Overlay * setResourceID(Resource::ID const & value);

    bool hasIntensity() const override;

    static constexpr auto describe()
    {
        return description("A picture from the stock, blended over the clip.", parameter("mode", &Overlay::mode));
    }
};

/// A clip that is blended over the one below.
struct EFFECTS_API ColorBlending : ColorBlendingBase
{
    EFFECT_CLASS(ColorBlending)
    ColorBlending();

    bool hasIntensity() const override; ///< false, although the engine is told the intensity
    bool isTwoInput() const override;

    static constexpr auto describe()
    {
        return description("A clip that is blended over the one below.", parameter("mode", &ColorBlending::mode));
    }
};

/// Takes the alpha of the picture from a second input. Its tag is empty.
struct EFFECTS_API AlphaInserter : VideoEffect
{
    EFFECT_CLASS(AlphaInserter)
    AlphaInserter();

    bool isTwoInput() const override;

    static constexpr auto describe() { return description("Takes the alpha of the picture from a second input."); }
};

} // namespace Effect
