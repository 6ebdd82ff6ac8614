#include "Printing.h"

#include <cmath>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <tuple>

#include <gtest/gtest.h>

#include <Settings/SettingsAudio.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsColor.h>
#include <Settings/SettingsColorFilter.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsDistortion.h>
#include <Settings/SettingsLight.h>
#include <Settings/SettingsMask.h>
#include <Settings/SettingsShader.h>
#include <Settings/SettingsTransform.h>

namespace {

using namespace Quoril::Proc;

std::string messageOf(Settings & settings, Record const & record)
{
    try {
        settings.Deserialize(record);
    } catch (std::invalid_argument const & error) {
        return error.what();
    }
    return "no exception";
}

TEST(Settings, AZeroThatWasGivenIsNotNothing)
{
    SettingsEffectSharpen settings;
    settings.SetLevel(0);
    EXPECT_FALSE(settings.IsEmpty());
    EXPECT_FALSE(settings.IsEqualTo(SettingsEffectSharpen()));
}

TEST(Settings, ADataMemberThatIsZeroAgainIsEmpty)
{
    SettingsEffectOpacity settings;
    settings.opacity = 0.5;
    EXPECT_FALSE(settings.IsEmpty());
    settings.opacity = 0;
    EXPECT_TRUE(settings.IsEmpty());
}

TEST(Settings, DataMembersStartAsZero)
{
    SettingsEffectFixVertVideo const vertical;
    EXPECT_EQ(vertical.GetFields(), (Record{{"geometry", Value::List{0, 0}}}));
    SettingsEffectTransform const transform;
    EXPECT_EQ(transform.GetFields(),
        (Record{{"mode", 0}, {"matrix", Value::List{1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0}}}));
}

TEST(Settings, DataMembersAreToldInOrderWithoutTheSettings)
{
    SettingsEffectChromakey settings;
    settings.SetParams(80, 0, 0.01, 0.1);
    settings.green = 200;
    EXPECT_EQ(settings.GetFields(), (Record{{"red", 0}, {"green", 200}, {"blue", 0}, {"alpha", 0}}));
}

TEST(Settings, ClassesAreNeverEqual)
{
    SettingsEffectBlurGaussian blur;
    SettingsEffectMotionBlur motion;
    blur.SetScale(1);
    motion.SetScale(1);
    EXPECT_FALSE(blur.IsEqualTo(motion));
    EXPECT_FALSE(SettingsEffectAutoContrast().IsEqualTo(SettingsEffectSaturation()));
    EXPECT_TRUE(SettingsEffectAutoContrast().IsEqualTo(SettingsEffectAutoContrast()));
}

TEST(Settings, NumbersCompareExactly)
{
    SettingsEffectSharpen a;
    SettingsEffectSharpen b;
    a.SetLevel(1);
    b.SetLevel(std::nextafter(1.0, 2.0));
    EXPECT_FALSE(a.IsEqualTo(b));
}

TEST(Settings, ACopyIsEqualEvenWithNaN)
{
    SettingsAudioEqualizer settings;
    settings.SetMultiband({{32, std::numeric_limits<double>::quiet_NaN()}});
    settings.SetIntensity(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(settings.Clone()->IsEqualTo(settings));
    SettingsAudioEqualizer other = settings;
    other.SetMultiband({{32, 0}});
    EXPECT_FALSE(settings.IsEqualTo(other));
}

TEST(Settings, VectorsCompareEntryByEntry)
{
    SettingsAudioEcho a;
    SettingsAudioEcho b;
    a.SetEchos({{100, 0.5}, {200, 0.25}});
    b.SetEchos({{100, 0.5}});
    EXPECT_FALSE(a.IsEqualTo(b));
    b.SetEchos({{100, 0.5}, {200, 0.25}});
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetEchos({{100, 0.5}, {201, 0.25}});
    EXPECT_FALSE(a.IsEqualTo(b));
    ASSERT_EQ(b.GetEchos().size(), 2u);
    EXPECT_EQ(b.GetEchos()[1].delay, 201);
    EXPECT_EQ(b.GetEchos()[1].decay, 0.25);
}

TEST(Settings, ImagesCompareByIdentity)
{
    auto const image = std::make_shared<ImageHandler const>();
    SettingsEffectBokehBlur a;
    SettingsEffectBokehBlur b;
    a.SetImage(image);
    b.SetImage(image);
    EXPECT_TRUE(a.IsEqualTo(b));
    b.SetImage(std::make_shared<ImageHandler const>());
    EXPECT_FALSE(a.IsEqualTo(b));
    EXPECT_EQ(a.GetImage(), image);
}

TEST(Settings, AnImageKeepsWhatDerivesFromItAlive)
{
    struct Held : ImageHandler
    {
        std::shared_ptr<int> owner = std::make_shared<int>(1);
    };
    auto held = std::make_shared<Held const>();
    std::weak_ptr<int> const owner = held->owner;
    SettingsEffectBokehBlur settings;
    settings.SetImage(held);
    held.reset();
    EXPECT_FALSE(owner.expired());
    settings.SetImage(nullptr);
    EXPECT_TRUE(owner.expired());
}

TEST(Settings, AColourCanBeThereOrNot)
{
    SettingsEffectColorBlender settings;
    EXPECT_FALSE(settings.GetBaseColor().has_value());
    settings.SetBaseColor(ColorF{0, 0, 0, 1});
    EXPECT_EQ(settings.GetBaseColor(), (ColorF{0, 0, 0, 1}));
    SettingsEffectColorBlender none;
    none.SetBaseColor(std::nullopt);
    EXPECT_FALSE(settings.IsEqualTo(none));
}

TEST(Settings, NestedSettingsAreCopiedAndCompareByValue)
{
    SettingsAudioPitch pitch;
    pitch.SetPitch(2);
    SettingsAudioRobot a;
    SettingsAudioRobot b;
    a.SetPitchSettings(pitch);
    b.SetPitchSettings(pitch);
    EXPECT_TRUE(a.IsEqualTo(b));
    pitch.SetPitch(3);
    EXPECT_EQ(a.GetPitchSettings().GetPitch(), 2);
    b.SetPitchSettings(pitch);
    EXPECT_FALSE(a.IsEqualTo(b));
}

TEST(Settings, FrameFunctionsCompareByIdentityWhichCopiesShare)
{
    auto const functor = [](double) { return std::make_unique<SettingsEffectMask::FrameMask>(); };
    SettingsEffectMask settings;
    EXPECT_TRUE(settings.GetFrameFunctors().empty());
    settings.SetFrameFunctors({functor, functor});
    EXPECT_TRUE(settings.Clone()->IsEqualTo(settings));
    SettingsEffectMask other;
    other.SetFrameFunctors({functor, functor});
    EXPECT_FALSE(settings.IsEqualTo(other));
    ASSERT_EQ(settings.GetFrameFunctors().size(), 2u);
    EXPECT_NE(settings.GetFrameFunctors()[1](0.5), nullptr);
}

TEST(Settings, AShaderTakesItsBaseSettings)
{
    SettingsEffectISF settings;
    BaseSettingsISF & base = settings;
    base.SetConfig("{}");
    base.SetPixelShader("void main() {}");
    EXPECT_EQ(settings.GetConfig(), "{}");
    EXPECT_FALSE(settings.IsEmpty());
    auto const clone = settings.Clone();
    EXPECT_EQ(clone->GetClassId(), "SettingsEffectISF");
    EXPECT_TRUE(clone->IsEqualTo(settings));
    EXPECT_FALSE(SettingsEffectISF().IsEqualTo(settings));
}

TEST(Settings, ReadsSettingsAndDataMembers)
{
    SettingsEffectVignetteFilter settings;
    settings.Deserialize({{"firstMode", 3}, {"Color", Value::List{255, 128, 128, 100}}, {"Intensity", 1},
        {"Params", Value::List{0.5, 0.5, 0.45, 0.5}}});
    EXPECT_EQ(settings.firstMode, 3);
    EXPECT_EQ(settings.GetColor(), std::make_tuple(255, 128, 128, 100));
    EXPECT_EQ(settings.GetIntensity(), 1.0f);
    EXPECT_EQ(settings.GetParams(), std::make_tuple(0.5, 0.5, 0.45, 0.5));
}

TEST(Settings, ReadsNestedForms)
{
    SettingsAudioRadio radio;
    radio.Deserialize({{"EqSettings", Value::Object{{"Multiband", Value::List{Value(Value::List{31, 0.5})}}}}});
    auto const bands = radio.GetEqSettings().GetMultiband();
    ASSERT_EQ(bands.size(), 1u);
    EXPECT_EQ(bands[0].centralFrequency, 31);
    EXPECT_EQ(bands[0].gain, 0.5);

    SettingsEffectColorBlender blender;
    blender.Deserialize({{"BaseColor", Value::List{0.5, 0, 0, 1}}});
    EXPECT_EQ(blender.GetBaseColor(), (ColorF{0.5f, 0, 0, 1}));
    blender.Deserialize({{"BaseColor", nullptr}});
    EXPECT_FALSE(blender.GetBaseColor().has_value());

    SettingsEffectTransform transform;
    transform.Deserialize({{"mode", 2}, {"matrix", Value::List{1, 2, 3, 4, 5, 6, 7, 8, 9}}});
    EXPECT_EQ(transform.mode, SettingsEffectTransform::Mode::Crop);
    EXPECT_EQ(transform.matrix, Quoril::Core::Matrix3x3(1, 2, 3, 4, 5, 6, 7, 8, 9));
}

TEST(Settings, PassesOverUnknownNames)
{
    SettingsEffectSharpen settings;
    settings.Deserialize({{"Scale", "anything"}, {"Level", 2}, {"level", nullptr}});
    EXPECT_EQ(settings.GetLevel(), 2);
    settings.Deserialize({});
    EXPECT_EQ(settings.GetLevel(), 2);
}

TEST(Settings, RefusesWhatHasTheWrongForm)
{
    struct Row
    {
        std::unique_ptr<Settings> settings;
        Record record;
        char const * message;
    };
    Row rows[] = {
        {std::make_unique<SettingsEffectSharpen>(), {{"Level", "much"}},
            "SettingsEffectSharpen: Level takes a number, not \"much\""},
        {std::make_unique<SettingsEffectVertigo>(), {{"Params", Value::List{1.0}}},
            "SettingsEffectVertigo: Params takes a list (a number, a number), not [1]"},
        {std::make_unique<SettingsEffectVertigo>(), {{"Params", 1.0}},
            "SettingsEffectVertigo: Params takes a list (a number, a number), not 1"},
        {std::make_unique<SettingsEffectChromakey>(), {{"red", 256}},
            "SettingsEffectChromakey: red takes an integer from 0 to 255, not 256"},
        {std::make_unique<SettingsEffectChromakey>(), {{"red", 1.0}},
            "SettingsEffectChromakey: red takes an integer from 0 to 255, not 1"},
        {std::make_unique<SettingsEffectFlyingObjects>(), {{"ObjectsCount", -1}},
            "SettingsEffectFlyingObjects: ObjectsCount takes an integer from 0 to 9223372036854775807, not -1"},
        {std::make_unique<SettingsEffectColorFilter>(), {{"preset", std::int64_t{1} << 31}},
            "SettingsEffectColorFilter: preset takes an integer from -2147483648 to 2147483647, not 2147483648"},
        {std::make_unique<SettingsEffectTemplateQES>(), {{"Shader", 1}},
            "SettingsEffectTemplateQES: Shader takes a string, not 1"},
        {std::make_unique<SettingsAudioRadio>(), {{"EqSettings", Value::Object{{"Intensity", true}}}},
            "SettingsAudioEqualizer: Intensity takes a number, not true"},
        {std::make_unique<SettingsAudioEcho>(), {{"Echos", Value::List{Value::List{1, 2}, 3}}},
            "SettingsAudioEcho: Echos takes a list, each entry a list (an integer from -2147483648 to 2147483647, "
            "a number), not [[1, 2], 3]"},
        {std::make_unique<SettingsEffectColorBlender>(), {{"BaseColor", Value::List{}}},
            "SettingsEffectColorBlender: BaseColor takes null or a list (a number, a number, a number, a number), "
            "not []"},
        {std::make_unique<SettingsEffectBokehBlur>(), {{"Image", nullptr}},
            "SettingsEffectBokehBlur: Image takes an image, which only code can give, not null"},
        {std::make_unique<SettingsEffectLUT>(), {{"Table", nullptr}},
            "SettingsEffectLUT: Table takes a table, which only code can give, not null"},
        {std::make_unique<SettingsEffectMask>(), {{"FrameFunctors", Value::List{}}},
            "SettingsEffectMask: FrameFunctors takes functions, which only code can give, not []"},
    };
    for (Row const & row : rows) {
        EXPECT_EQ(messageOf(*row.settings, row.record), row.message);
        EXPECT_TRUE(row.settings->IsEmpty()) << row.message;
    }
}

TEST(Settings, RefusesARecordWhole)
{
    SettingsEffectTwirl settings;
    settings.SetIntensity(0.5f);
    EXPECT_THROW(settings.Deserialize({{"Intensity", 1}, {"Params", nullptr}}), std::invalid_argument);
    EXPECT_EQ(settings.GetIntensity(), 0.5f);
}

TEST(Settings, ShortensLongValuesInMessages)
{
    SettingsEffectSharpen settings;
    // A quotation mark, 78 letters, and the first byte of a character that does not fit.
    std::string const text = std::string(78, 'x') + "\u00e9 and more";
    EXPECT_EQ(messageOf(settings, {{"Level", text}}),
        "SettingsEffectSharpen: Level takes a number, not \"" + std::string(78, 'x') + "...");
}

/// A host may have settings classes of its own.
class OwnSettings final : public Settings
{
public:
    std::unique_ptr<Settings> Clone() const override { return std::make_unique<OwnSettings>(*this); }
    std::string GetClassId() const override { return "OwnSettings"; }
};

TEST(Settings, AClassWithoutMembersIsEmpty)
{
    OwnSettings settings;
    EXPECT_TRUE(settings.IsEmpty());
    EXPECT_TRUE(settings.Clone()->IsEqualTo(settings));
    EXPECT_TRUE(settings.GetFields().empty());
    EXPECT_NO_THROW(settings.Deserialize({{"anything", 1}}));
}

} // namespace
