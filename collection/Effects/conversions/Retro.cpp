#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsEffectRetroArtefacts & settings, RetroArtefacts const & effect, VideoParams const &)
{
    settings.shake = effect.shake;
    settings.vignetting = effect.vignetting;
    settings.grain = effect.grain;
    settings.scratches = effect.scratches;
    settings.rollerTrack = effect.rollerTrack;
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectRetroColors & settings, RetroColors const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
    copyKnown(effect.type, 4, settings.type);
}

void fill(Proc::SettingsEffectVHS & settings, VHS const & effect, VideoParams const &)
{
    settings.SetParams(effect.speed, effect.shift, effect.smoothness, effect.relief);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectTelevision70s & settings, Television70s const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
    settings.SetStripesWidth(static_cast<float>(effect.stripesWidth));
}

void fill(Proc::SettingsEffectGlitchMpeg & settings, GlitchMpeg const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectGlitchSecurityCam & settings, GlitchSecurityCam const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
    settings.SetConstDistortion(static_cast<float>(effect.constDistortion));
    settings.SetRandDistortion(static_cast<float>(effect.randDistortion));
}

void fill(Proc::SettingsEffectFilmStrip & settings, FilmStrip const & effect, VideoParams const &)
{
    using Type = Proc::SettingsEffectFilmStrip::Type;
    // The engine counts from 1: its 0 is no strip.
    static constexpr Type strips[] = {Type(1), Type(2), Type(3)};

    if (auto const * const strip = knownRow(strips, effect.type))
        settings.SetType(*strip);
}

} // namespace Effect::Factory
