#include <memory>
#include <stdexcept>
#include <typeinfo>

#include <EditorModel/EffectFactory.h>
#include <effects/Base.h>
#include <effects/ColorCorrection.h>
#include <effects/Geometry.h>
#include <effects/Identity.h>
#include <effects/PrivateIdentity.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using testing::IsEmpty;

class SettingsFactoryTest : public Testing::ConversionTest
{};

TEST(SettingsFactoryInstallation, LastsAsLongAsTheFactory)
{
    EXPECT_EQ(Factory::factory(), nullptr);
    {
        Factory::SettingsFactory const factory;
        EXPECT_EQ(Factory::factory(), &factory);
    }
    EXPECT_EQ(Factory::factory(), nullptr);
    EXPECT_THROW(Factory::videoEffectSettings(AutoContrast(), {}), std::logic_error);
    EXPECT_THROW(Factory::audioEffectSettings(AutoContrast(), {}), std::logic_error);
}

TEST_F(SettingsFactoryTest, DescriptorsAreRefused)
{
    EffectDescriptor const effect(Id::Normalize, Id::Normalize, Type::Audio);
    char const * const message = "Settings requested for descriptor. Effect ID is 6c7a85ac-2a34-44a0-bd07-504f95370354";
    EXPECT_THAT(convert(effect, Factory::AudioParams()).log, ElementsAre(message));
    EXPECT_THAT(convert(effect, Factory::VideoParams()).log, ElementsAre(message));
    EXPECT_THAT(convert(effect).settings, IsEmpty());
}

TEST_F(SettingsFactoryTest, EachKindHasItsOwnTable)
{
    AutoContrast const effect;
    auto const converted = convert(effect, Factory::AudioParams());
    EXPECT_THAT(converted.log, ElementsAre("Couldn't provide settings for unknown effect. Effect ID is "
                                           "fe49dfef-2cc8-4a94-976e-6dce9a0d3e55"));
    EXPECT_THAT(converted.settings, IsEmpty());
    EXPECT_EQ(converted.stageCode, 0);
    EXPECT_EQ(converted.implementation, "");
}

TEST_F(SettingsFactoryTest, UnknownIdentifiersAreReported)
{
    VideoEffect const effect(QString::fromUtf8("Wärme"), QString());
    EXPECT_THAT(convert(effect).log, ElementsAre("Couldn't provide settings for unknown effect. Effect ID is Wärme"));
}

TEST_F(SettingsFactoryTest, AWrongClassBehindAnIdentifierIsABadCast)
{
    EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(Id::AutoContrast, Id::AutoContrast), {}), std::bad_cast);
    EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(Id::ManualEnhance, Id::ManualEnhance), {}), std::bad_cast);
    // The three kinds of rows, and one of the other table.
    struct
    {
        QString identifier;
        char const * expected;
    } const rows[] = {
        {Id::AutoContrast, "Effect::AutoContrast"},
        {Id::Blur, "Effect::Blur"},
        {Id::ManualEnhance, "Effect::ManualEnhance"},
        {Id::PictureInPicture, "Effect::PictureInPicture"},
        {Id::Mask, "Effect::Mask"},
        {Id::ColorMixField, "Effect::ColorMixField"},
        {Id::AudioEcho, "Effect::AudioEcho"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.expected);
        Crop effect;
        effect.id = row.identifier;
        try {
            if (row.identifier == Id::AudioEcho)
                Factory::audioEffectSettings(effect, {});
            else
                Factory::videoEffectSettings(effect, {});
            ADD_FAILURE() << "was converted";
        } catch (std::bad_cast const & error) {
            EXPECT_EQ(error.what(), "the identifier \"" + row.identifier.toStdString() + "\" belongs to the class " +
                                        row.expected + ", and the effect is of the class Effect::Crop");
        }
    }
    // The table is intact afterwards.
    EXPECT_EQ(convert(AutoContrast()).settings.size(), 1U);
}

} // namespace
