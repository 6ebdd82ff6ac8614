#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsEffectTwirl & settings, Twirl const & effect, VideoParams const &)
{
    settings.SetParams(effect.startRotate, effect.speedRotate, effect.startTwirl, effect.speedTwirl);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectVertigo & settings, Vertigo const & effect, VideoParams const &)
{
    settings.SetParams(effect.scale, effect.speed);
    settings.SetIntensity(effect.intensity); // a double here
}

void fill(Proc::SettingsEffectFishEye & settings, FishEye const & effect, VideoParams const &)
{
    settings.SetDeviation(effect.deviation);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectLensDistortion & settings, LensDistortion const & effect, VideoParams const &)
{
    settings.SetIntensity(effect.intensity); // a double here
    settings.SetDistortion(effect.distortion);
    settings.SetMemberCount(effect.memberCount);
    settings.SetZoom(effect.zoom);
}

void fill(Proc::SettingsEffectCameraShake & settings, CameraShake const & effect, VideoParams const &)
{
    settings.SetSettings(effect.shuft_x, effect.shuft_y, effect.rotate, effect.frequency, effect.persistence);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectChromaticAberration & settings, ChromaticAberration const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
}

} // namespace Effect::Factory
