/// @file
/// Colour correction: four one-button corrections and the manual colour panel. Their intensity has no effect.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Stretches the contrast to the full range.
struct EFFECTS_API AutoContrast : VideoEffect
{
    EFFECT_CLASS(AutoContrast)
    AutoContrast();

    static constexpr auto describe() { return description("Stretches the contrast to the full range."); }
};

/// Raises the saturation of a pale picture.
struct EFFECTS_API AutoSaturation : VideoEffect
{
    EFFECT_CLASS(AutoSaturation)
    AutoSaturation();

    static constexpr auto describe() { return description("Raises the saturation of a pale picture."); }
};

/// Makes one colour of the picture neutral.
struct EFFECTS_API WhiteBalance : VideoEffect
{
    EFFECT_CLASS(WhiteBalance)
    WhiteBalance();

    std::uint32_t color = 0xFF000000; ///< `0xAARRGGBB`; the alpha plays no part

    static constexpr auto describe()
    {
        return description("Makes one colour of the picture neutral.", parameter("color", &WhiteBalance::color));
    }
};

/// Corrects brightness, contrast and colours in one step.
struct EFFECTS_API MagicEnhance : VideoEffect
{
    EFFECT_CLASS(MagicEnhance)
    MagicEnhance();

    static constexpr auto describe() { return description("Corrects brightness, contrast and colours in one step."); }
};

/// The manual colour panel: sliders from -1 to 1, of which 0 changes nothing. Values beyond are passed on.
struct EFFECTS_API ManualEnhance : VideoEffect
{
    EFFECT_CLASS(ManualEnhance)
    ManualEnhance();

    double gamma = 0;       ///< brightness of the middle tones
    double highlights = 0;  ///< brightness of the bright parts
    double shadows = 0;     ///< brightness of the dark parts
    double brightness = 0;  ///< of the whole picture
    double contrast = 0;    ///< flat below 0
    double saturation = 0;  ///< grey at -1
    double hue = 0;         ///< turns all colours
    double temperature = 0; ///< warm above 0, cold below
    double tint = 0;        ///< green above 0, magenta below

    ManualEnhance * setGamma(double value);
    ManualEnhance * setHighlights(double value);
    ManualEnhance * setShadows(double value);
    ManualEnhance * setBrightness(double value);
    ManualEnhance * setContrast(double value);
    ManualEnhance * setSaturation(double value);
    ManualEnhance * setHue(double value);
    ManualEnhance * setTemperature(double value);
    ManualEnhance * setTint(double value);

    /// Compares the nine sliders with `fuzzyEqual`, and nothing of the base: panels set alike are equal, whatever
    /// their tags.
    bool operator==(ManualEnhance const & other) const;
    bool operator!=(ManualEnhance const & other) const { return !(*this == other); }

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("The manual colour panel: sliders from -1 to 1, of which 0 changes nothing.",
            parameter("gamma", &ManualEnhance::gamma), parameter("highlights", &ManualEnhance::highlights),
            parameter("shadows", &ManualEnhance::shadows), parameter("brightness", &ManualEnhance::brightness),
            parameter("contrast", &ManualEnhance::contrast), parameter("saturation", &ManualEnhance::saturation),
            parameter("hue", &ManualEnhance::hue), parameter("temperature", &ManualEnhance::temperature),
            parameter("tint", &ManualEnhance::tint));
    }
};

} // namespace Effect
