#include <cstdint>

#include <effects/Retro.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::FilterForm;
using Testing::packed;

using Integer = std::int32_t;
using Count = std::uint32_t;

TEST(Retro, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<RetroArtefacts>(), "Effect::RetroArtefacts", "e8400386-05fe-428e-97e6-5a52eaed904c",
            "effect_retro_artefacts",
            R"({"shake": false, "vignetting": false, "grain": 0, "scratches": 0, "rollerTrack": 0})",
            R"({"shake": true, "vignetting": true, "grain": 1, "scratches": 2, "rollerTrack": 4294967295})",
            packed(true, true, Count(1), Count(2), Count(4294967295))},
        {std::make_shared<RetroColors>(), "Effect::RetroColors", "72984ac5-3af2-4c27-8342-d940507f188f",
            "effet_retro_colors", R"({"type": 0})", R"({"type": 4})", packed(Integer(4))},
        {std::make_shared<VHS>(), "Effect::VHS", "5830bcba-b2de-4f36-9230-636b6263c9be", "effect_vhs",
            R"({"speed": 0.07, "shift": 0.05, "smoothness": 0.07, "relief": 0.05})",
            R"({"speed": 1.5, "shift": 2.5, "smoothness": 3.5, "relief": 4.5})", packed(1.5, 2.5, 3.5, 4.5)},
        {std::make_shared<Television70s>(), "Effect::Television70s", "5404dd53-fab2-43a8-9678-25afe0dcbb52",
            "effect_television70s", R"({"stripesWidth": 0.7})", R"({"stripesWidth": -1.5})", packed(-1.5)},
        {std::make_shared<GlitchMpeg>(), "Effect::GlitchMpeg", "d32c1f98-2c2c-4152-be12-14987b67e345",
            "effect_glitch_mpeg", "{}", "{}", ""},
        {std::make_shared<GlitchSecurityCam>(), "Effect::GlitchSecurityCam", "fbbf0206-4625-4da0-a003-581537f35fe9",
            "effect_glitch_security_cam", R"({"randDistortion": 1.4, "constDistortion": 0.15})",
            R"({"randDistortion": 1.5, "constDistortion": 2.5})", packed(1.5, 2.5)},
        {std::make_shared<FilmStrip>(), "Effect::FilmStrip", "23426fc3-a681-413a-a9fe-340503101431", "effect_filmStrip",
            R"({"type": 0})", R"({"type": 2})", packed(Integer(2))},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_EQ(form.effect->hasIntensity(), !dynamic_cast<FilmStrip const *>(form.effect.get())) << form.archiveName;
    }
}

} // namespace
