/// @file
/// Colour correction: four one-button corrections and the manual colour panel. They ignore the intensity.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Stretches the contrast to the full range from black to white.
struct EFFECTS_API AutoContrast : VideoEffect
{
    EFFECT_CLASS(AutoContrast)
    AutoContrast();

    static constexpr auto describe()
    {
        return description("Spreads the tones of the picture from full black to full white.");
    }
};

/// Raises the saturation of a pale picture.
struct EFFECTS_API AutoSaturation : VideoEffect
{
    EFFECT_CLASS(AutoSaturation)
    AutoSaturation();

    static constexpr auto describe() { return description("Gives a pale picture stronger colours."); }
};

/// Removes a colour cast: one colour of the picture becomes neutral.
struct EFFECTS_API WhiteBalance : VideoEffect
{
    EFFECT_CLASS(WhiteBalance)
    WhiteBalance();

    std::uint32_t color = 0xFF000000; ///< what becomes neutral, `0xAARRGGBB`; the alpha is ignored

    static constexpr auto describe()
    {
        return description("Removes a colour cast by making one colour of the picture neutral.",
            parameter("color", &WhiteBalance::color)
                .label("Neutral colour")
                .text("Pick something in the picture that is white or grey in reality")
                .color());
    }
};

/// Corrects brightness, contrast and colours in one step.
struct EFFECTS_API MagicEnhance : VideoEffect
{
    EFFECT_CLASS(MagicEnhance)
    MagicEnhance();

    static constexpr auto describe() { return description("Corrects brightness, contrast and colours in one step."); }
};

/// The manual colour panel: nine sliders from -1 to 1, where 0 changes nothing. Values beyond that range are passed on.
/// Sliders at rest become no settings, so a default panel has an empty record.
struct EFFECTS_API ManualEnhance : VideoEffect
{
    EFFECT_CLASS(ManualEnhance)
    ManualEnhance();

    double gamma = 0;       ///< brightness of the midtones, -1 to 1
    double highlights = 0;  ///< brightness of the light parts, -1 to 1
    double shadows = 0;     ///< brightness of the dark parts, -1 to 1
    double brightness = 0;  ///< brightness of the whole picture, -1 to 1
    double contrast = 0;    ///< difference between light and dark, -1 to 1; flat below 0
    double saturation = 0;  ///< strength of the colours, -1 to 1; -1 is grey
    double hue = 0;         ///< turns all colours, -1 to 1; 1 is 180 degrees
    double temperature = 0; ///< warm above 0, cold below, -1 to 1
    double tint = 0;        ///< green above 0, magenta below, -1 to 1

    ManualEnhance * setGamma(double value);
    ManualEnhance * setHighlights(double value);
    ManualEnhance * setShadows(double value);
    ManualEnhance * setBrightness(double value);
    ManualEnhance * setContrast(double value);
    ManualEnhance * setSaturation(double value);
    ManualEnhance * setHue(double value);
    ManualEnhance * setTemperature(double value);
    ManualEnhance * setTint(double value);

    /// Compares the nine sliders with `fuzzyEqual` and ignores the base: two panels with the same sliders are equal
    /// even if their tags or intensities differ.
    bool operator==(ManualEnhance const & other) const;
    bool operator!=(ManualEnhance const & other) const { return !(*this == other); }

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description(
            "Adjusts brightness, contrast and colours with nine sliders from -1 to 1. 0 changes nothing.",
            parameter("gamma", &ManualEnhance::gamma)
                .label("Gamma")
                .text("Brightness of the midtones")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("highlights", &ManualEnhance::highlights)
                .label("Highlights")
                .text("Brightness of the light parts")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("shadows", &ManualEnhance::shadows)
                .label("Shadows")
                .text("Brightness of the dark parts")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("brightness", &ManualEnhance::brightness)
                .label("Brightness")
                .text("Makes the whole picture lighter or darker")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("contrast", &ManualEnhance::contrast)
                .label("Contrast")
                .text("Difference between light and dark; flatter below 0")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("saturation", &ManualEnhance::saturation)
                .label("Saturation")
                .text("Strength of the colours; -1 is grey, 1 is three times as strong")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("hue", &ManualEnhance::hue)
                .label("Hue")
                .text("Turns all colours around the colour wheel; 1 and -1 are half a turn")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("temperature", &ManualEnhance::temperature)
                .label("Temperature")
                .text("Warmer above 0, colder below")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("tint", &ManualEnhance::tint)
                .label("Tint")
                .text("Greener above 0, closer to magenta below")
                .range(-1, 1)
                .beyond(Beyond::Passed));
    }
};

} // namespace Effect
