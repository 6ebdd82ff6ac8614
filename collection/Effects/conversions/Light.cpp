#include <optional>

#include <collection/Effects/Conversions.h>
#include <EditorSettings/Settings.h>
#include <effects/Light.h>
#include <effects/PrivateIdentity.h>
#include <FileSystem/FileSystem.h>
#include <Settings/SettingsLight.h>

namespace Effect::Factory {

namespace {

struct Flight
{
    char const * image;
    std::uint64_t count;
    double scale;
    std::int32_t firstValue;
    std::int32_t secondValue;
    int direction; // degrees
    double moveSpeed;
    double rotationSpeed;
    double swingSpeed;
    std::int32_t thirdValue;
};

// By preset. The names are those of the files, spelling included.
// clang-format off
constexpr Flight flights[] = {
    {"leaf2.png",       60, 0.75, 270, 30, -90, 0.0625, 0.0,  0.15, 45},
    {"baloon.png",      60, 0.87,   0, 30,  90, 0.0625, 0.0,  0.0,  45},
    {"bunny.png",       60, 0.81,   0, 30, -90, 0.0625, 0.0,  0.65, 69},
    {"cupid2.png",      10, 0.75, 350, 10, 180, 0.05,   0.0,  0.1,   9},
    {"gift box.png",    35, 0.87,   0, 30, -90, 0.15,   0.0,  0.3,  60},
    {"ghost2.png",      15, 1.5,    0, 30, 128, 0.0375, 0.0,  0.0,  45},
    {"heart.png",       50, 0.58,   0, 30, 100, 0.15,   0.0,  0.55, 80},
    {"envelope2.png",   21, 0.52,  11, 30,  80, 0.025,  0.0,  0.1,  11},
    {"paper plane.png", 25, 1.15,  31, 10, 190, 0.25,   0.0,  0.0,   1},
    {"umbrella.png",    30, 0.92,   0, 15,  90, 0.0625, 0.0,  0.0,  45},
    {"rose2.png",       64, 0.69,   0, 15, -90, 0.025,  0.1,  0.0,   1},
    {"flower1.png",    200, 0.29,   0, 15, -90, 0.025,  0.1,  0.0,   1},
    {"star.png",       120, 0.35,   0, 15, 100, 0.1,    1.0,  0.0,  45},
    {"air baloon.png",  14, 1.27,   0, 15,  90, 0.0375, 0.0,  0.0,  45},
    {"snowflake3.png", 113, 0.4,    0, 45, -90, 0.0375, 0.0,  0.25, 60},
    {"snowflake2.png",  83, 0.4,    0, 45, 200, 0.025,  0.25, 0.0,  45},
};
// clang-format on

} // namespace

namespace {

// The engine's number by preset. The engine has no counterpart of 4 and 5.
constexpr std::optional<std::int32_t> flares[] = {0, 1, 2, 3, std::nullopt, std::nullopt, 4, 5};

} // namespace

namespace {

struct Vignette
{
    std::int32_t firstMode;
    std::int32_t secondMode;
    std::int32_t thirdMode;
    unsigned char red;
    unsigned char green;
    unsigned char blue;
    unsigned char alpha;
    double size;
    double softness;
};

// By preset.
// clang-format off
constexpr Vignette vignettes[] = {
    {0, 1, 0,   0,   0,   0, 100, 0.45, 0.5},
    {0, 1, 0,   0,   0,   0, 200, 0.35, 0.5},
    {3, 0, 0, 255, 128, 128, 100, 0.45, 0.5},
    {0, 1, 0, 255, 255, 255, 200, 0.45, 0.55},
    {3, 1, 0,   0,   0,   0, 255, 0.45, 0.5},
    {4, 1, 1,   0,   0,   0, 100, 0.5,  0.6},
    {4, 1, 1,   0,   0,   0, 255, 0.4,  0.65},
    {5, 1, 0,   0,   0,   0, 200, 0.35, 0.5},
    {5, 1, 0,   0,   0,   0, 100, 0.35, 0.5},
};
// clang-format on

} // namespace

void addLight(Conversions & table)
{
    table.add<FlyingObjects, Proc::SettingsEffectFlyingObjects>(
        Id::FlyingObjects, [](auto & settings, FlyingObjects const & effect, auto const & context) {
            QLatin1String const image(nearestRow(flights, effect.preset).image);
            settings.SetImage(
                context.caches.images.image(FS::joinPath({::Settings::stockFlyingObjectsPath(), image}, QString())));
            settings.paramsHead = context.frameGeometry;
            settings.SetIntensity(floatIntensity(effect));
            if (auto const * flight = knownRow(flights, effect.preset)) {
                settings.SetObjectsCount(flight->count);
                settings.SetScale(flight->scale);
                settings.firstValue = flight->firstValue;
                settings.secondValue = flight->secondValue;
                settings.SetMoveDirection(flight->direction);
                settings.SetMoveSpeed(flight->moveSpeed);
                settings.SetRotationSpeed(flight->rotationSpeed);
                settings.SetSwingRotationSpeed(flight->swingSpeed);
                settings.thirdValue = flight->thirdValue;
            }
        });

    table.add<LensFlare, Proc::SettingsEffectLensFlare>(Id::LensFlare, [](auto & settings, LensFlare const & effect) {
        settings.SetIntensity(floatIntensity(effect));
        if (auto const * flare = knownRow(flares, effect.Presets); flare && *flare)
            settings.preset = static_cast<Proc::SettingsEffectLensFlare::Preset>(**flare);
    });

    table.add<LightLeaks, Proc::SettingsEffectLightLeaks>(
        Id::LightLeaks, [](auto & settings, LightLeaks const & effect) {
            settings.SetIntensity(floatIntensity(effect));
            settings.preset = static_cast<Proc::SettingsEffectLightLeaks::Preset>(knownValue(effect.Presets, 16));
        });

    table.add<VignetteFilter, Proc::SettingsEffectVignetteFilter>(
        Id::VignetteFilter, [](auto & settings, VignetteFilter const & effect) {
            if (auto const * vignette = knownRow(vignettes, effect.preset)) {
                settings.firstMode = vignette->firstMode;
                settings.secondMode = vignette->secondMode;
                settings.thirdMode = vignette->thirdMode;
                settings.SetColor(vignette->red, vignette->green, vignette->blue, vignette->alpha);
                settings.SetParams(0.5, 0.5, vignette->size, vignette->softness); // around the middle
            }
            settings.SetIntensity(floatIntensity(effect));
        });
}

} // namespace Effect::Factory
