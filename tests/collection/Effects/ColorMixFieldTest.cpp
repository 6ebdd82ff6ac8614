// A host that has the class which the library only names: this program, outside of the shared library.

#include <limits>
#include <string>
#include <typeinfo>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Base.h>
#include <serialization/Register.h>
#include <Settings/Settings.h>
#include <Settings/Trace.h>

#include <gtest/gtest.h>

namespace {

QString const identifier = QLatin1String("4675ad3e-cffd-4979-ae1f-5cbf07e8cbdd");

} // namespace

namespace Effect {

struct EFFECTS_API ColorMixField : VideoEffect
{
    EFFECT_CLASS(ColorMixField)

    ColorMixField()
        : VideoEffect(identifier, identifier)
    {}
    bool hasIntensity() const override { return true; }

    double threshold = 0.25;
    double contrast = 0.5;
    std::uint32_t color = 0x80FF0102;
    QString note; // what the library knows nothing of

    static constexpr auto describe()
    {
        return description("Mixes a field of one colour in.", parameter("threshold", &ColorMixField::threshold),
            parameter("contrast", &ColorMixField::contrast), parameter("color", &ColorMixField::color).color(),
            parameter("note", &ColorMixField::note));
    }
};

} // namespace Effect

EFFECT_KEY(ColorMixField)
EFFECT_REGISTER(ColorMixField, VideoEffect)

namespace {

using namespace Effect;

struct DerivedField final : ColorMixField
{};

std::string converted(Object const & effect)
{
    Quoril::Proc::Trace const trace;
    auto const record = Factory::videoEffectSettings(effect, {});
    EXPECT_EQ(record.stageCode, 18);
    EXPECT_EQ(record.implementation, "DEFAULT");
    return record.settings.size() == 1 ? trace.describe(*record.settings[0]).toString() : std::string();
}

class ColorMixFieldOfAHost : public testing::Test
{
    struct NoItems
    {
        NoItems() { EditorCollection::CollectionProvider::setItemStorage(&storage); }
        ~NoItems() { EditorCollection::CollectionProvider::setItemStorage(nullptr); }
        EditorCollection::NullItemStorage storage;
    };

    NoItems m_items;
    ContentProvider m_provider;
};

TEST_F(ColorMixFieldOfAHost, IsConverted)
{
    ColorMixField effect;
    effect.intensity = 0.1; // reaches no setting
    EXPECT_EQ(converted(effect), R"({"class": "SettingsEffectColorMixField", "calls": [["SetThreshold", 0.25], )"
                                 R"(["SetContrast", 0.5], ["SetFieldColor", 255, 1, 2]], "fields": {}})");
}

TEST_F(ColorMixFieldOfAHost, IsConvertedAsABase)
{
    DerivedField effect;
    effect.threshold = -1;
    effect.contrast = 2;
    effect.color = 3;
    EXPECT_EQ(converted(effect), R"({"class": "SettingsEffectColorMixField", "calls": [["SetThreshold", -1], )"
                                 R"(["SetContrast", 2], ["SetFieldColor", 0, 0, 3]], "fields": {}})");
}

TEST_F(ColorMixFieldOfAHost, PassesItsNumbersAsTheyAre)
{
    struct
    {
        double number;
        char const * passed;
    } const rows[] = {
        // Neither is a number of single precision.
        {0.1, "0.1"},
        {1e300, "1e+300"},
        {-5e-324, "-5e-324"},
        {-0.0, "-0"},
        {std::numeric_limits<double>::infinity(), "inf"},
        {std::numeric_limits<double>::quiet_NaN(), "nan"},
    };
    for (auto const & row : rows) {
        std::string const number = row.passed;
        ColorMixField effect;
        effect.threshold = row.number;
        effect.contrast = 3;
        effect.color = 0x00010203;
        EXPECT_EQ(converted(effect), R"({"class": "SettingsEffectColorMixField", "calls": [["SetThreshold", )" +
                                         number +
                                         R"(], ["SetContrast", 3], ["SetFieldColor", 1, 2, 3]], "fields": {}})");
        effect.threshold = 3;
        effect.contrast = row.number;
        EXPECT_EQ(converted(effect), R"({"class": "SettingsEffectColorMixField", "calls": [["SetThreshold", 3], )"
                                     R"(["SetContrast", )" +
                                         number + R"(], ["SetFieldColor", 1, 2, 3]], "fields": {}})");
    }
}

TEST_F(ColorMixFieldOfAHost, IsConvertedAfterItsWayThroughAnArchive)
{
    ColorMixField effect;
    effect.threshold = 0.75;
    effect.note = QStringLiteral("a host's own");
    auto const read = Archive::fromJson(Archive::toJson(effect));
    EXPECT_EQ(dynamic_cast<ColorMixField const &>(*read).note, "a host's own");
    EXPECT_EQ(converted(*Archive::fromBinary(Archive::toBinary(*read))),
        R"({"class": "SettingsEffectColorMixField", "calls": [["SetThreshold", 0.75], )"
        R"(["SetContrast", 0.5], ["SetFieldColor", 255, 1, 2]], "fields": {}})");
}

TEST_F(ColorMixFieldOfAHost, IsNoOtherClass)
{
    EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(identifier, identifier), {}), std::bad_cast);
}

} // namespace
