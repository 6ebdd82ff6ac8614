#include <collection/Effects/Conversions.h>
#include <effects/PrivateIdentity.h>
#include <effects/Retro.h>
#include <Settings/SettingsRetro.h>

namespace Effect::Factory {

void addRetro(Conversions & table)
{
    table.add<RetroArtefacts, Proc::SettingsEffectRetroArtefacts>(
        Id::RetroArtefacts, [](auto & settings, RetroArtefacts const & effect) {
            settings.shake = effect.shake;
            settings.vignetting = effect.vignetting;
            settings.grain = effect.grain;
            settings.scratches = effect.scratches;
            settings.rollerTrack = effect.rollerTrack;
            settings.SetIntensity(floatIntensity(effect));
        });

    table.add<RetroColors, Proc::SettingsEffectRetroColors>(
        Id::RetroColors, [](auto & settings, RetroColors const & effect) {
            settings.SetIntensity(floatIntensity(effect));
            copyKnown(effect.type, 4, settings.type);
        });

    table.add<VHS, Proc::SettingsEffectVHS>(Id::VHS, [](auto & settings, VHS const & effect) {
        settings.SetParams(effect.speed, effect.shift, effect.smoothness, effect.relief);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<Television70s, Proc::SettingsEffectTelevision70s>(
        Id::Television70s, [](auto & settings, Television70s const & effect) {
            settings.SetIntensity(floatIntensity(effect));
            settings.SetStripesWidth(static_cast<float>(effect.stripesWidth));
        });

    table.add<GlitchMpeg, Proc::SettingsEffectGlitchMpeg>(Id::GlitchMpeg,
        [](auto & settings, GlitchMpeg const & effect) { settings.SetIntensity(floatIntensity(effect)); });

    table.add<GlitchSecurityCam, Proc::SettingsEffectGlitchSecurityCam>(
        Id::GlitchSecurityCam, [](auto & settings, GlitchSecurityCam const & effect) {
            settings.SetIntensity(floatIntensity(effect));
            settings.SetConstDistortion(static_cast<float>(effect.constDistortion));
            settings.SetRandDistortion(static_cast<float>(effect.randDistortion));
        });

    table.add<FilmStrip, Proc::SettingsEffectFilmStrip>(Id::FilmStrip, [](auto & settings, FilmStrip const & effect) {
        using Type = Proc::SettingsEffectFilmStrip::Type;
        // The engine counts from 1; 0 means no strip.
        static constexpr Type strips[] = {Type(1), Type(2), Type(3)};

        if (auto const * const strip = knownRow(strips, effect.type))
            settings.SetType(*strip);
    });
}

} // namespace Effect::Factory
