#include <effects/Retro.h>
#include <support/Conversion.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::expectConversion;
using Testing::settings;

// In single precision, 0.1 is 0.10000000149011612, 0.2 is 0.20000000298023224 and 0.3 is 0.30000001192092896.
class RetroConversion : public Testing::ConversionTest
{};

TEST_F(RetroConversion, RetroArtefacts)
{
    RetroArtefacts effect;
    effect.intensity = 0.1;
    effect.vignetting = true;
    effect.grain = 1;
    effect.scratches = 2;
    effect.rollerTrack = 4294967295;
    expectConversion(
        effect, settings("SettingsEffectRetroArtefacts", R"(["SetIntensity", 0.10000000149011612])",
                    R"("shake": false, "vignetting": true, "grain": 1, "scratches": 2, "rollerTrack": 4294967295)"));
    effect.shake = true;
    effect.vignetting = false;
    expectConversion(
        effect, settings("SettingsEffectRetroArtefacts", R"(["SetIntensity", 0.10000000149011612])",
                    R"("shake": true, "vignetting": false, "grain": 1, "scratches": 2, "rollerTrack": 4294967295)"));
}

TEST_F(RetroConversion, RetroArtefactsAtItsDefaults)
{
    expectConversion(
        RetroArtefacts(), settings("SettingsEffectRetroArtefacts", R"(["SetIntensity", 1])",
                              R"("shake": false, "vignetting": false, "grain": 0, "scratches": 0, "rollerTrack": 0)"));
}

TEST_F(RetroConversion, RetroColors)
{
    struct Row
    {
        int type;
        char const * passed;
    };
    // An unknown one leaves the settings' own, 0.
    Row const rows[] = {
        {0, R"("type": 0)"},
        {1, R"("type": 1)"},
        {2, R"("type": 2)"},
        {3, R"("type": 3)"},
        {4, R"("type": 0)"},
        {-1, R"("type": 0)"},
    };
    for (Row const & row : rows) {
        RetroColors effect;
        effect.intensity = 0.1;
        effect.type = RetroColors::Film(row.type);
        expectConversion(
            effect, settings("SettingsEffectRetroColors", R"(["SetIntensity", 0.10000000149011612])", row.passed));
    }
}

TEST_F(RetroConversion, VHS)
{
    VHS effect;
    effect.intensity = 0.1;
    effect.speed = 0.2;
    effect.shift = 0.3;
    effect.smoothness = 0.4;
    effect.relief = 0.5;
    expectConversion(effect,
        settings("SettingsEffectVHS", R"(["SetParams", 0.2, 0.3, 0.4, 0.5], ["SetIntensity", 0.10000000149011612])"));
}

TEST_F(RetroConversion, Television70s)
{
    Television70s effect;
    effect.intensity = 0.1;
    effect.stripesWidth = 0.2;
    expectConversion(effect, settings("SettingsEffectTelevision70s",
                                 R"(["SetIntensity", 0.10000000149011612], ["SetStripesWidth", 0.20000000298023224])"));
}

TEST_F(RetroConversion, GlitchMpeg)
{
    GlitchMpeg effect;
    effect.intensity = 0.1;
    expectConversion(effect, settings("SettingsEffectGlitchMpeg", R"(["SetIntensity", 0.10000000149011612])"));
}

TEST_F(RetroConversion, GlitchSecurityCamPassesTheConstantDistortionFirst)
{
    GlitchSecurityCam effect;
    effect.intensity = 0.1;
    effect.randDistortion = 0.3;
    effect.constDistortion = 0.2;
    expectConversion(
        effect, settings("SettingsEffectGlitchSecurityCam",
                    R"(["SetIntensity", 0.10000000149011612], ["SetConstDistortion", 0.20000000298023224], )"
                    R"(["SetRandDistortion", 0.30000001192092896])"));
}

TEST_F(RetroConversion, FilmStripIsCountedFromOneAndHasNoIntensity)
{
    struct Row
    {
        int type;
        char const * calls;
    };
    Row const rows[] = {
        {0, R"(["SetType", 1])"},
        {1, R"(["SetType", 2])"},
        {2, R"(["SetType", 3])"},
        {3, ""},
        {-1, ""},
    };
    for (Row const & row : rows) {
        FilmStrip effect;
        effect.intensity = 0.5;
        effect.type = FilmStrip::Strip(row.type);
        expectConversion(effect, settings("SettingsEffectFilmStrip", row.calls));
    }
}

} // namespace
