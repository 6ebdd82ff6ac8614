#include <collection/Effects/Conversions.h>
#include <effects/Distortion.h>
#include <effects/PrivateIdentity.h>
#include <Settings/Members.h>
#include <Settings/SettingsDistortion.h>

namespace Effect::Factory {

void addDistortion(Conversions & table)
{
    table.add<Twirl, Proc::SettingsEffectTwirl>(Id::Twirl, [](auto & settings, Twirl const & effect) {
        settings.SetParams(effect.startRotate, effect.speedRotate, effect.startTwirl, effect.speedTwirl);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<Vertigo, Proc::SettingsEffectVertigo>(Id::Vertigo, [](auto & settings, Vertigo const & effect) {
        settings.SetParams(effect.scale, effect.speed);
        settings.SetIntensity(effect.intensity); // a double here
    });

    table.add<FishEye, Proc::SettingsEffectFishEye>(Id::FishEye, [](auto & settings, FishEye const & effect) {
        settings.SetDeviation(effect.deviation);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<LensDistortion, Proc::SettingsEffectLensDistortion>(
        Id::LensDistortion, [](auto & settings, LensDistortion const & effect) {
            settings.SetIntensity(effect.intensity); // a double here
            settings.SetDistortion(effect.distortion);
            settings.SetMemberCount(effect.memberCount);
            settings.SetZoom(effect.zoom);
        });

    table.add<CameraShake, Proc::SettingsEffectCameraShake>(
        Id::CameraShake, [](auto & settings, CameraShake const & effect) {
            settings.SetSettings(effect.shuft_x, effect.shuft_y, effect.rotate, effect.frequency, effect.persistence);
            settings.SetIntensity(floatIntensity(effect));
        });

    table.add<ChromaticAberration, Proc::SettingsEffectChromaticAberration>(Id::ChromaticAberration,
        [](auto & settings, ChromaticAberration const & effect) { settings.SetIntensity(floatIntensity(effect)); });
}

} // namespace Effect::Factory
