#include <cmath>

#include <collection/Effects/Conversions.h>
#include <EditorModel/Fuzzy.h>
#include <effects/ColorCorrection.h>
#include <effects/Identity.h>
#include <Settings/SettingsColor.h>

namespace Effect::Factory {

namespace {

constexpr float neutralTemperature = 6500; // kelvin

std::unique_ptr<Proc::Settings> tint(ManualEnhance const & effect)
{
    auto settings = std::make_unique<Proc::SettingsEffectGIMPColorize>();
    bool const green = effect.tint > 0;
    settings->SetRed(green ? 0 : 1);
    settings->SetGreen(green ? 1 : 0);
    settings->SetBlue(green ? 0 : 1);
    // The single-precision 0.45, as a double.
    settings->SetIntensity(static_cast<float>(std::abs(effect.tint) * 0.44999998807907104));
    return settings;
}

std::unique_ptr<Proc::Settings> temperature(ManualEnhance const & effect)
{
    float original = neutralTemperature;
    float intended = neutralTemperature;
    // The two sides differ on purpose, in what they move and in how far.
    if (effect.temperature > 0)
        original = neutralTemperature - static_cast<float>(effect.temperature) * 3800;
    else
        intended = neutralTemperature - static_cast<float>(effect.temperature * -1.0) * 4000;
    auto settings = std::make_unique<Proc::SettingsEffectGIMPColorTemperature>();
    settings->SetOriginalTemperature(original);
    settings->SetIntendedTemperature(intended);
    return settings;
}

std::unique_ptr<Proc::Settings> brightnessAndContrast(ManualEnhance const & effect)
{
    auto settings = std::make_unique<Proc::SettingsEffectGIMPColorCorrection>();
    settings->SetBrightness(static_cast<float>(effect.brightness));
    settings->SetContrast(static_cast<float>(effect.contrast * 0.39));
    return settings;
}

std::unique_ptr<Proc::Settings> gammaAndSaturation(ManualEnhance const & effect)
{
    auto settings = std::make_unique<Proc::SettingsEffectColorBalance>();
    // -1 to 0, 0 to 1, 1 to 3.
    settings->saturation = effect.saturation < 0 ? effect.saturation + 1 : 2 * effect.saturation + 1;
    // -1 to 4, 0 to 1, 1 to 0.5. It is infinite where the divisor vanishes, below -1.
    double divisor = effect.gamma + 1;
    if (effect.gamma < 0)
        divisor = divisor * 0.75 + 0.25;
    settings->gamma = 1 / divisor;
    return settings;
}

std::unique_ptr<Proc::Settings> hue(ManualEnhance const & effect)
{
    using Range = Proc::SettingsEffectGIMPHueSaturation::HueRange;
    auto settings = std::make_unique<Proc::SettingsEffectGIMPHueSaturation>();
    settings->SetHue(static_cast<Range>(0), static_cast<float>(effect.hue * 180));
    settings->SetIntensity(0.7F); // whatever the slider says
    return settings;
}

std::unique_ptr<Proc::Settings> shadowsAndHighlights(ManualEnhance const & effect)
{
    auto settings = std::make_unique<Proc::SettingsEffectGIMPShadowsHightlights>();
    settings->SetShadows(static_cast<float>(effect.shadows * (effect.shadows < 0 ? 100 : 70)));
    settings->SetHighlights(static_cast<float>(effect.highlights * (effect.highlights < 0 ? 80 : 100)));
    return settings;
}

EffectSettings convertManualEnhance(ManualEnhance const & effect, VideoParams const &)
{
    static ManualEnhance const atRest;
    auto const moved = [&](double ManualEnhance::*slider) { return !fuzzyEqual(effect.*slider, atRest.*slider); };

    // Only sliders that are not at rest become settings, so the others cost the engine nothing.
    EffectSettings record{{}, Stage::video, Proc::ImplNames::DEFAULT};
    if (moved(&ManualEnhance::tint))
        record.settings.push_back(tint(effect));
    if (moved(&ManualEnhance::temperature))
        record.settings.push_back(temperature(effect));
    if (moved(&ManualEnhance::brightness) || moved(&ManualEnhance::contrast))
        record.settings.push_back(brightnessAndContrast(effect));
    if (moved(&ManualEnhance::gamma) || moved(&ManualEnhance::saturation))
        record.settings.push_back(gammaAndSaturation(effect));
    if (moved(&ManualEnhance::hue))
        record.settings.push_back(hue(effect));
    if (moved(&ManualEnhance::highlights) || moved(&ManualEnhance::shadows))
        record.settings.push_back(shadowsAndHighlights(effect));
    return record;
}

} // namespace

void addColorCorrection(Conversions & table)
{
    table.addRecord<ManualEnhance>(Id::ManualEnhance, convertManualEnhance);

    table.add<WhiteBalance, Proc::SettingsEffectAutoWhiteBalance>(
        Id::WhiteBalance,
        [](auto & settings, WhiteBalance const & effect) {
            auto const [red, green, blue] = channels(effect.color);
            settings.red = red;
            settings.green = green;
            settings.blue = blue;
            settings.alpha = 255; // whatever the effect's alpha
        },
        Stage::oneButton);

    table.addBare<AutoContrast, Proc::SettingsEffectAutoContrast>(Id::AutoContrast, Stage::oneButton);

    table.addBare<AutoSaturation, Proc::SettingsEffectSaturation>(Id::AutoSaturation, Stage::oneButton);

    table.addBare<MagicEnhance, Proc::SettingsEffectMagicEnhance2>(Id::MagicEnhance, Stage::oneButton);
}

} // namespace Effect::Factory
