#include <effects/ColorCorrection.h>

#include <EditorModel/Fuzzy.h>
#include <effects/Identity.h>

namespace Effect {

EFFECT_CONSTRUCTOR(AutoContrast, VideoEffect, Id::AutoContrast, Id::AutoContrast, Tags::tagAutoContrast)
EFFECT_CONSTRUCTOR(AutoSaturation, VideoEffect, Id::AutoSaturation, Id::AutoSaturation, Tags::tagAutoSaturation)
EFFECT_CONSTRUCTOR(WhiteBalance, VideoEffect, Id::WhiteBalance, Id::WhiteBalance, Tags::tagWhiteBalance)
EFFECT_CONSTRUCTOR(MagicEnhance, VideoEffect, Id::MagicEnhance, Id::MagicEnhance, Tags::tagMagicEnhance)
EFFECT_CONSTRUCTOR(ManualEnhance, VideoEffect, Id::ManualEnhance, Id::ManualEnhance, Tags::tagManualEnhance)

EFFECT_DEFAULT_TAG(ManualEnhance, Tags::tagManualEnhance)

EFFECT_SETTER(ManualEnhance, setGamma, double, gamma)
EFFECT_SETTER(ManualEnhance, setHighlights, double, highlights)
EFFECT_SETTER(ManualEnhance, setShadows, double, shadows)
EFFECT_SETTER(ManualEnhance, setBrightness, double, brightness)
EFFECT_SETTER(ManualEnhance, setContrast, double, contrast)
EFFECT_SETTER(ManualEnhance, setSaturation, double, saturation)
EFFECT_SETTER(ManualEnhance, setHue, double, hue)
EFFECT_SETTER(ManualEnhance, setTemperature, double, temperature)
EFFECT_SETTER(ManualEnhance, setTint, double, tint)

bool ManualEnhance::operator==(ManualEnhance const & other) const
{
    return this == &other || (fuzzyEqual(brightness, other.brightness) && fuzzyEqual(contrast, other.contrast) &&
                                 fuzzyEqual(highlights, other.highlights) && fuzzyEqual(shadows, other.shadows) &&
                                 fuzzyEqual(hue, other.hue) && fuzzyEqual(temperature, other.temperature) &&
                                 fuzzyEqual(tint, other.tint) && fuzzyEqual(saturation, other.saturation) &&
                                 fuzzyEqual(gamma, other.gamma));
}

} // namespace Effect
