// The public data members of the settings after each conversion, where the engine's settings start with 77 and true
// (OtherEngine.h): a member that is left alone differs from one that is set, even to 0 or false.

#include <memory>
#include <set>
#include <string>
#include <vector>

#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>
#include <EditorSerialization/Registry.h>
#include <effects/Artistic.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/ColorFilters.h>
#include <effects/Composition.h>
#include <effects/Dynamics.h>
#include <effects/Geometry.h>
#include <effects/Light.h>
#include <effects/Mask.h>
#include <effects/Mirroring.h>
#include <effects/Modulation.h>
#include <effects/Retro.h>
#include <effects/Shaders.h>
#include <effects/Voice.h>
#include <Settings/Settings.h>
#include <Settings/SettingsRetro.h>
#include <support/Images.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Quoril::Proc::Value;
using testing::ElementsAre;

/// The data members of each settings object of the effect's record.
std::vector<std::string> fieldsOf(Object const & effect)
{
    auto const record = effect.type() == Type::Video ? Factory::videoEffectSettings(effect, {{1920, 1080}, 5})
                                                     : Factory::audioEffectSettings(effect, {});
    std::vector<std::string> fields;
    for (auto const & settings : record.settings)
        fields.push_back(Value(settings->GetFields()).toString());
    return fields;
}

class Fields : public testing::Test
{
protected:
    Testing::TemporaryStock stock;
    Factory::SettingsFactory factory;
};

TEST_F(Fields, OfTheEngineStartAs77)
{
    ASSERT_EQ(Value(Quoril::Proc::SettingsEffectRetroArtefacts().GetFields()).toString(),
        R"({"shake": true, "vignetting": true, "grain": 77, "scratches": 77, "rollerTrack": 77})");
}

struct Row
{
    std::shared_ptr<Object> effect;
    char const * fields;
};

/// Every effect whose settings have data members, as its constructor makes it.
std::vector<Row> defaults()
{
    return {
        {std::make_shared<WhiteBalance>(), R"({"red": 0, "green": 0, "blue": 0, "alpha": 255})"},
        {std::make_shared<Crop>(), R"({"mode": 2, "matrix": [1, 0, 0, 0, 1, 0, 0, 0, 1]})"},
        {std::make_shared<Transpose>(), R"({"mode": 1, "matrix": [1, 0, 0, -0, 1, 0, 0, 0, 1]})"},
        {std::make_shared<Flip>(), R"({"mode": 0, "matrix": [1, 0, 0, 0, 1, 0, 0, 0, 1]})"},
        {std::make_shared<Mirror>(), R"({"vertical": 0, "horizontal": 0})"},
        {std::make_shared<FixVertVideo>(), R"({"geometry": [1920, 1080]})"},
        // At rest it is an untouched sub-frame.
        {std::make_shared<PictureInPicture>(), R"({"srcLeft": 77, "srcTop": 77, "srcRight": 77, "srcBottom": 77, )"
                                               R"("dstLeft": 77, "dstTop": 77, "dstRight": 77, "dstBottom": 77})"},
        {std::make_shared<SideBySide>(), R"({"srcLeft": 0.25, "srcTop": 0, "srcRight": 0.75, "srcBottom": 1, )"
                                         R"("dstLeft": 0, "dstTop": 0, "dstRight": 0.5, "dstBottom": 1})"},
        {std::make_shared<Opacity>(), R"({"opacity": 1})"},
        // The fourth byte is the engine's.
        {std::make_shared<ChromaKey>(), R"({"red": 0, "green": 200, "blue": 0, "alpha": 77})"},
        {std::make_shared<Overlay>(), R"({"blendMode": 11})"},
        {std::make_shared<ColorBlending>(), R"({"blendMode": 0})"},
        // There is no such file, so nothing is set.
        {std::make_shared<Lut>(), R"({"intensity": 77})"},
        {std::make_shared<OilPaint>(), R"({"radius": 5})"},
        {std::make_shared<Mosaic>(), R"({"type": 0})"},
        {std::make_shared<AddNoize>(), R"({"type": 0})"},
        {std::make_shared<RetroArtefacts>(),
            R"({"shake": false, "vignetting": false, "grain": 0, "scratches": 0, "rollerTrack": 0})"},
        {std::make_shared<RetroColors>(), R"({"type": 0})"},
        {std::make_shared<ColorBrush>(), R"({"angle": 45, "size": 10, "rough": 10, "type": 0})"},
        {std::make_shared<ColorFilter>(), R"({"preset": 0, "intensity": 1})"},
        {std::make_shared<ColorSelect>(), R"({"red": 0, "green": 200, "blue": 0})"},
        {std::make_shared<FlyingObjects>(),
            R"({"paramsHead": [1920, 1080], "firstValue": 270, "secondValue": 30, "thirdValue": 45})"},
        {std::make_shared<LensFlare>(), R"({"preset": 0})"},
        {std::make_shared<LightLeaks>(), R"({"preset": 0})"},
        {std::make_shared<VignetteFilter>(), R"({"firstMode": 0, "secondMode": 1, "thirdMode": 0})"},
        {std::make_shared<AudioNoiseGate>(), R"({"detection": 0, "link": 0})"},
        {std::make_shared<AudioCompressor>(), R"({"detection": 0, "link": 0})"},
        {std::make_shared<AudioDistortion>(), R"({"type": 0})"},
        {std::make_shared<AudioFlanger>(), R"({"shape": 1, "interpolation": 0})"},
        {std::make_shared<AudioReverb>(), R"({"modeA": 2, "modeB": 1, "modeC": 1})"},
        {std::make_shared<AudioMonoChannel>(), R"({"channelCount": 1})"},
    };
}

TEST_F(Fields, OfDefaultEffects)
{
    for (Row const & row : defaults())
        EXPECT_THAT(fieldsOf(*row.effect), ElementsAre(row.fields)) << row.effect->GetNameInArchive();
}

TEST_F(Fields, OfTheOtherEffectsAreNone)
{
    std::set<std::string> listed;
    for (Row const & row : defaults())
        listed.insert(row.effect->GetNameInArchive());
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Testing::created(name);
        auto const * const effect = dynamic_cast<Object const *>(object.get());
        if (effect && !effect->id.isEmpty() && listed.count(name) == 0) {
            EXPECT_THAT(fieldsOf(*effect), testing::Each("{}")) << name;
        }
    }
}

TEST_F(Fields, OfOneNumberDoNotDependOnAnother)
{
    Mirror mirror;
    mirror.vertical = Mirror::Half{3};
    mirror.horizontal = Mirror::Half{2};
    EXPECT_THAT(fieldsOf(mirror), ElementsAre(R"({"vertical": 77, "horizontal": 2})"));
    mirror.vertical = Mirror::Half{1};
    mirror.horizontal = Mirror::Half{-1};
    EXPECT_THAT(fieldsOf(mirror), ElementsAre(R"({"vertical": 1, "horizontal": 77})"));

    ColorBrush brush;
    brush.pType = decltype(brush.pType)(2);
    brush.angle = 1;
    brush.size = 2;
    brush.rough = 3;
    EXPECT_THAT(fieldsOf(brush), ElementsAre(R"({"angle": 1, "size": 2, "rough": 3, "type": 77})"));
}

TEST_F(Fields, OfAColorBalanceAreBothSet)
{
    ManualEnhance effect;
    effect.setSaturation(-1);
    EXPECT_THAT(fieldsOf(effect), ElementsAre(R"({"saturation": 0, "gamma": 1})"));
}

TEST_F(Fields, OfAMaskGoByItsFrames)
{
    Mask effect;
    effect.setBackgroundFill(Mask::BackgroundFill{7})->setBackgroundOpacity(0);
    FrameConceal small;
    small.setPixelSize(0);
    effect.addFrame(FrameHighlight())->addFrame(FrameConceal())->addFrame(small);
    EXPECT_THAT(
        fieldsOf(effect), ElementsAre(R"({"kind": 1, "pixelSize": 77, "backgroundOpacity": 0, "frameParameter": 0.04, )"
                                      R"("backgroundSmoothness": 0, "backgroundFill": 0})",
                              R"({"kind": 0, "pixelSize": 0.1, "backgroundOpacity": 77, "frameParameter": 0.04, )"
                              R"("backgroundSmoothness": 77, "backgroundFill": 77})",
                              R"({"kind": 0, "pixelSize": 0, "backgroundOpacity": 77, "frameParameter": 0.04, )"
                              R"("backgroundSmoothness": 77, "backgroundFill": 77})"));
}

} // namespace
