// What a factory has loaded: under which name it knows a file again, and that it does not read it again.

#include <memory>
#include <optional>
#include <string>

#include <collection/Effects/ImageHolder.h>
#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Blur.h>
#include <effects/Light.h>
#include <effects/Shaders.h>
#include <ParserLUT/LUTTable.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsLight.h>
#include <Settings/SettingsShader.h>
#include <support/FileOpens.h>
#include <support/Images.h>
#include <support/Resources.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Quoril::Proc::SettingsEffectISF;
using Quoril::Proc::SettingsEffectLUT;
using Testing::FileOpens;

class Caches : public testing::Test
{
protected:
    /// The only settings object of an effect's record, as its class.
    template <class Settings> static std::unique_ptr<Settings> only(Object const & effect)
    {
        auto const record = Factory::videoEffectSettings(effect, {});
        EXPECT_EQ(record.settings.size(), 1U);
        return std::make_unique<Settings>(dynamic_cast<Settings const &>(*record.settings.at(0)));
    }

    Testing::TemporaryResources resources;
    std::optional<Factory::SettingsFactory> factory{std::in_place};
};

TEST_F(Caches, AnImageIsDecodedOnce)
{
    Testing::TemporaryStock const stock;
    QString const path = ::Settings::stockBlurMasksPath() + "/bokeh.png";
    Testing::writeImage(path, 3, 2);
    FileOpens opens(path);
    Factory::ImageHolder holder;
    holder.image(path);
    ASSERT_EQ(opens.count(), 1);
    for (int look = 0; look < 3; ++look) {
        holder.image(path);
        EXPECT_EQ(opens.count(), 1);
    }

    // The factory's conversions share the holder of the factory, and another factory has one of its own.
    auto const maskOf = [] { return only<Quoril::Proc::SettingsEffectBokehBlur>(BokehBlur())->GetImage(); };
    auto const mask = maskOf();
    EXPECT_EQ(opens.count(), 2);
    EXPECT_EQ(maskOf(), mask);
    EXPECT_EQ(opens.count(), 2);
    factory.reset();
    factory.emplace();
    EXPECT_NE(maskOf(), mask);
    EXPECT_EQ(opens.count(), 3);
}

TEST_F(Caches, ABrokenImageIsNotTriedAgain)
{
    resources.write("broken.png", "no picture");
    FileOpens opens(resources.path("broken.png"));
    Factory::ImageHolder holder;
    EXPECT_EQ(holder.image(resources.path("broken.png"))->width, 0);
    int const tried = opens.count();
    EXPECT_GT(tried, 0);
    EXPECT_EQ(holder.image(resources.path("broken.png"))->width, 0);
    EXPECT_EQ(opens.count(), tried);
}

QByteArray const table2 = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";

TEST_F(Caches, ATableIsReadOnce)
{
    resources.write("warm.cube", table2);
    resources.write("bad.cube", "LUT_1D_SIZE 2\n0 0 0\n");
    resources.write("empty.cube", "");
    resources.add("warm", "warm.cube");
    resources.add("bad", "bad.cube");
    resources.add("empty", "empty.cube");
    FileOpens warm(resources.path("warm.cube"));
    FileOpens bad(resources.path("bad.cube"));
    FileOpens empty(resources.path("empty.cube"));
    int lastEmpty = 0;
    for (int conversion = 0; conversion < 3; ++conversion) {
        EXPECT_NE(only<SettingsEffectLUT>(Lut("warm"))->GetTable(), nullptr);
        EXPECT_EQ(only<SettingsEffectLUT>(Lut("bad"))->GetTable(), nullptr);
        EXPECT_EQ(only<SettingsEffectLUT>(Lut("empty"))->GetTable(), nullptr);
        EXPECT_EQ(warm.count(), 1);
        EXPECT_EQ(bad.count(), 1);
        // A file that holds nothing may yet be filled.
        EXPECT_GT(empty.count(), lastEmpty);
        lastEmpty = empty.count();
    }
}

TEST_F(Caches, ATableIsKnownByTheNameOfItsResource)
{
    resources.write("warm.cube", table2);
    resources.add("warm", "warm.cube", Resource::Type::Image);
    resources.write("cold.cube", "LUT_1D_SIZE 3\n0 0 0\n0 0 1\n1 1 1\n");
    resources.add("cold", "cold.cube");

    // Neither the type that the effect asks for nor the one that the file is registered under plays a part.
    std::shared_ptr<Quoril::Proc::LUT::LUTTable> const warm = only<SettingsEffectLUT>(Lut("warm"))->GetTable();
    ASSERT_NE(warm, nullptr);
    for (auto const type : {Resource::Type::None, Resource::Type::Video, Resource::Type::Audio, Resource::Type::Image,
             Resource::Type::Blob, Resource::Type(77)}) {
        Lut effect("warm");
        effect.resource = Resource::ID("warm", type);
        EXPECT_EQ(only<SettingsEffectLUT>(effect)->GetTable(), warm) << static_cast<int>(type);
    }

    // Nor does anything else of the effect.
    Lut grouped("warm");
    grouped.groupId = "cold";
    grouped.tag = "cold";
    grouped.resourcePath = resources.path("cold.cube");
    EXPECT_EQ(only<SettingsEffectLUT>(grouped)->GetTable(), warm);
    Lut regrouped("warm");
    regrouped.resource = Resource::ID("cold", Resource::Type::Blob);
    EXPECT_EQ(only<SettingsEffectLUT>(regrouped)->GetTable()->size[0], 3);
}

TEST_F(Caches, AShaderIsLoadedOnce)
{
    resources.write("glow.fs", "/*{}*/pixels");
    FileOpens opens(resources.path("glow.fs"));
    ShaderISF effect("glow");
    effect.resourcePath = resources.path("glow.fs");
    for (int conversion = 0; conversion < 3; ++conversion) {
        EXPECT_EQ(only<SettingsEffectISF>(effect)->GetPixelShader(), "pixels");
        EXPECT_EQ(opens.count(), 1);
    }
}

TEST_F(Caches, AShaderIsKnownByTheNameOfItsResource)
{
    resources.write("glow.fs", "/*{}*/glow");
    resources.write("snow.fs", "/*{}*/snow");
    auto const shaderOf = [&](QString const & name, QString const & group, char const * file) {
        ShaderISF effect(group);
        effect.resource = Resource::ID(name, Resource::Type::Blob);
        effect.resourcePath = resources.path(file);
        return only<SettingsEffectISF>(effect)->GetPixelShader();
    };
    EXPECT_EQ(shaderOf("glow", "group", "glow.fs"), "glow");
    // Of the same group, and yet another one.
    EXPECT_EQ(shaderOf("snow", "group", "snow.fs"), "snow");
    // Of another group, or from another path, and yet the same one.
    EXPECT_EQ(shaderOf("glow", "another group", "snow.fs"), "glow");
    // The empty name is one like any other.
    EXPECT_EQ(shaderOf("", "group", "snow.fs"), "snow");
    EXPECT_EQ(shaderOf("", "another group", "glow.fs"), "snow");

    ShaderISF picture("glow");
    picture.resource = Resource::ID("glow", Resource::Type::Image);
    EXPECT_EQ(only<SettingsEffectISF>(picture)->GetPixelShader(), "glow");
}

TEST_F(Caches, AVertexShaderOfOneDoesNotReachTheNext)
{
    resources.write("glow.fs", "/*{}*/glow");
    resources.write("glow.vs", "corners");
    resources.write("snow.fs", "/*{}*/snow");
    ShaderISF glow("glow");
    glow.resourcePath = resources.path("glow.fs");
    ShaderISF snow("snow");
    snow.resourcePath = resources.path("snow.fs");
    EXPECT_EQ(only<SettingsEffectISF>(glow)->GetVertexShader(), "corners");
    EXPECT_EQ(only<SettingsEffectISF>(snow)->GetVertexShader(), "");
    EXPECT_EQ(only<SettingsEffectISF>(glow)->GetVertexShader(), "corners");
}

} // namespace
