#include <effects/ColorCorrection.h>

#include <EditorModel/Fuzzy.h>
#include <effects/Identity.h>

namespace Effect {

QString ManualEnhance::defaultTag() const
{
    return Tags::tagManualEnhance;
}

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
