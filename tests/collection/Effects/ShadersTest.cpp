#include <cstring>
#include <optional>
#include <string>

#include <collection/Effects/Stages.h>
#include <effects/Identity.h>
#include <effects/Shaders.h>
#include <ParserLUT/LUTTable.h>
#include <Settings/SettingsShader.h>
#include <Settings/Trace.h>
#include <support/Conversion.h>
#include <support/Images.h>
#include <support/Resources.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QGuiApplication>

namespace {

using namespace Effect;
using Quoril::Proc::SettingsEffectISF;
using Quoril::Proc::SettingsEffectLUT;
using Quoril::Proc::SettingsEffectTemplateQES;
using Testing::convert;
using Testing::Converted;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::settings;

// A table of one dimension, short enough to write by hand.
QByteArray const table2 = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";
QByteArray const table3 = "LUT_1D_SIZE 3\n0 0 0\n0.5 0.5 0.5\n1 1 1\n";
QByteArray const truncated = "LUT_1D_SIZE 2\n0 0 0\n";

std::string lutSettings(int size, std::string const & intensity = "1")
{
    return settings("SettingsEffectLUT",
        R"(["SetTable", {"size": [)" + std::to_string(size) + R"(, 1, 1]}], ["SetMode", 1])",
        R"("intensity": )" + intensity);
}

std::string const untouchedLut = settings("SettingsEffectLUT", "", R"("intensity": 0)");

// A test with a factory that can be replaced, and files to convert.
class ShadersConversion : public testing::Test
{
protected:
    void replaceFactory()
    {
        // The old one must go first: its end takes away whichever is installed.
        factory.reset();
        factory.emplace();
    }

    // What the only settings object of an effect's record is, as its class.
    template <class Settings> static std::unique_ptr<Settings> only(Object const & effect)
    {
        auto record = Factory::videoEffectSettings(effect, {});
        EXPECT_EQ(record.settings.size(), 1U);
        auto & converted = dynamic_cast<Settings &>(*record.settings.at(0));
        record.settings[0].release();
        return std::unique_ptr<Settings>(&converted);
    }

    Testing::TemporaryResources resources;
    std::optional<Factory::SettingsFactory> factory{std::in_place};
};

class LutConversion : public ShadersConversion
{
protected:
    void SetUp() override { resources.add("warm", "warm.cube"); }

    Lut const effect{"warm"};
};

TEST_F(LutConversion, GivesTheTable)
{
    resources.write("warm.cube", table2);
    Converted const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings, ElementsAre(lutSettings(2)));
    EXPECT_THAT(converted.log, IsEmpty());
}

TEST_F(LutConversion, NarrowsTheIntensityAndDoesNotClampIt)
{
    resources.write("warm.cube", table2);
    Lut strong("warm");
    for (double const intensity : {0.1, -2.0, 0.0, 1e300}) {
        strong.intensity = intensity;
        EXPECT_EQ(only<SettingsEffectLUT>(strong)->intensity, static_cast<float>(intensity));
    }
}

TEST_F(LutConversion, WithoutATableLeavesTheSettingsAlone)
{
    resources.add("empty", "empty.cube");
    resources.write("empty.cube", "");
    resources.add("unknown", "unknown.cube");
    resources.write("unknown.cube", "no table at all");
    resources.add("truncated", "truncated.cube");
    resources.write("truncated.cube", truncated);
    resources.add("folder", ".");
    // The empty name is no name, whatever was registered as it.
    resources.add("", "table.cube");
    resources.write("table.cube", table2);
    for (char const * const name : {"warm", "empty", "unknown", "truncated", "folder", "", "nowhere"}) {
        SCOPED_TRACE(name);
        Converted const converted = convert(Lut(name));
        EXPECT_EQ(converted.stageCode, 18);
        EXPECT_EQ(converted.implementation, "DEFAULT");
        EXPECT_THAT(converted.settings, ElementsAre(untouchedLut));
        EXPECT_THAT(converted.log, IsEmpty());
        EXPECT_TRUE(only<SettingsEffectLUT>(Lut(name))->IsEmpty());
    }
}

TEST_F(LutConversion, TheDefaultNameIsANameLikeAnyOther)
{
    EXPECT_THAT(convert(Lut()).settings, ElementsAre(untouchedLut));
    resources.add("no resource", "warm.cube");
    resources.write("warm.cube", table2);
    EXPECT_THAT(convert(Lut()).settings, ElementsAre(lutSettings(2)));
}

TEST_F(LutConversion, ReadsTheFileOnce)
{
    resources.write("warm.cube", table2);
    auto const first = only<SettingsEffectLUT>(effect);
    resources.write("warm.cube", table3);
    // Another effect on the same file has its own intensity and the same table.
    Lut second("warm");
    second.intensity = 0.5;
    auto const converted = only<SettingsEffectLUT>(second);
    EXPECT_EQ(converted->intensity, 0.5F);
    EXPECT_EQ(converted->GetTable(), first->GetTable());
    resources.remove("warm.cube");
    EXPECT_EQ(only<SettingsEffectLUT>(effect)->GetTable(), first->GetTable());
    // Names are compared exactly.
    resources.add("Warm", "upper.cube");
    resources.write("upper.cube", table3);
    EXPECT_THAT(convert(Lut("Warm")).settings, ElementsAre(lutSettings(3)));
}

TEST_F(LutConversion, AReplacedFactoryReadsAnew)
{
    resources.write("warm.cube", table2);
    auto const first = only<SettingsEffectLUT>(effect);
    resources.write("warm.cube", table3);
    replaceFactory();
    EXPECT_THAT(convert(effect).settings, ElementsAre(lutSettings(3)));
    // What the old one gave is still whole.
    EXPECT_EQ(first->GetTable()->entries.size(), 2U);
}

TEST_F(LutConversion, AsksAgainForAFileThatIsMissingOrEmpty)
{
    EXPECT_THAT(convert(effect).settings, ElementsAre(untouchedLut));
    resources.write("warm.cube", "");
    EXPECT_THAT(convert(effect).settings, ElementsAre(untouchedLut));
    resources.write("warm.cube", table2);
    EXPECT_THAT(convert(effect).settings, ElementsAre(lutSettings(2)));
}

TEST_F(LutConversion, RemembersAFileThatIsNoTable)
{
    for (QByteArray const & bad : {truncated, QByteArray("no table at all"), QByteArray(" \n"), QByteArray(3, '\0')}) {
        SCOPED_TRACE(bad.toStdString());
        replaceFactory();
        resources.write("warm.cube", bad);
        EXPECT_THAT(convert(effect).settings, ElementsAre(untouchedLut));
        resources.write("warm.cube", table2);
        EXPECT_THAT(convert(effect).settings, ElementsAre(untouchedLut));
        replaceFactory();
        EXPECT_THAT(convert(effect).settings, ElementsAre(lutSettings(2)));
    }
}

TEST_F(LutConversion, ATextEndsAtTheFirstZeroByte)
{
    resources.write("warm.cube", table2 + '\0' + "0.5 0.5 0.5\n");
    EXPECT_THAT(convert(effect).settings, ElementsAre(lutSettings(2)));
}

// What the loader of shader files makes of an empty head.
std::string const emptyConfig =
    R"({"ISFVSN":"1","DESCRIPTION":"","CREDIT":"","CATEGORIES":[],"INPUTS":[],)"
    R"("PASSES":[{"TARGET":"","PERSISTENT":false,"FLOAT":false,"WIDTH":"$WIDTH","HEIGHT":"$HEIGHT"}],"IMPORTED":[]})";

class IsfConversion : public ShadersConversion
{
protected:
    ShaderISF glow(char const * inputs = "") const
    {
        ShaderISF effect("glow");
        effect.resourcePath = resources.path("glow.fs");
        effect.inputs = inputs;
        return effect;
    }
};

TEST_F(IsfConversion, GivesTheTextsOfTheFile)
{
    resources.write("glow.fs", "/*{}*/void main() {}\n");
    Converted const converted = convert(glow());
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.log, IsEmpty());
    auto const shader = only<SettingsEffectISF>(glow());
    EXPECT_EQ(shader->GetConfig(), emptyConfig);
    EXPECT_EQ(shader->GetPixelShader(), "void main() {}\n");
}

TEST_F(IsfConversion, SetsOnlyAVertexShaderThatThereIs)
{
    resources.write("glow.fs", "/*{}*/pixels");
    ShaderISF const effect = glow("{}");
    EXPECT_THAT(convert(effect).settings,
        ElementsAre(settings("SettingsEffectISF", R"(["SetConfig", "{}"], ["SetPixelShader", "pixels"])")));
    resources.write("glow.vs", "corners");
    replaceFactory();
    EXPECT_THAT(convert(effect).settings,
        ElementsAre(settings("SettingsEffectISF",
            R"(["SetConfig", "{}"], ["SetPixelShader", "pixels"], ["SetVertexShader", "corners"])")));
}

TEST_F(IsfConversion, TheUsersInputsWin)
{
    resources.write("glow.fs", "/*{}*/pixels");
    EXPECT_THAT(convert(glow("whatever")).settings,
        ElementsAre(settings("SettingsEffectISF", R"(["SetConfig", "whatever"], ["SetPixelShader", "pixels"])")));
}

TEST_F(IsfConversion, PassesNoIntensity)
{
    resources.write("glow.fs", "/*{}*/pixels");
    ShaderISF strong = glow("{}");
    strong.intensity = 0.25;
    EXPECT_EQ(convert(strong).settings, convert(glow("{}")).settings);
}

TEST_F(IsfConversion, LoadsAResourceOnce)
{
    resources.write("glow.fs", "/*{}*/first");
    auto const first = only<SettingsEffectISF>(glow());
    resources.write("glow.fs", "/*{}*/second");
    auto const second = only<SettingsEffectISF>(glow("other inputs"));
    EXPECT_EQ(second->GetPixelShader(), "first");
    EXPECT_EQ(second->GetConfig(), "other inputs");
    EXPECT_EQ(first->GetConfig(), emptyConfig);
    // The one effect's inputs leave nothing behind for the next.
    EXPECT_EQ(only<SettingsEffectISF>(glow())->GetConfig(), emptyConfig);
    // A resource is known by its name, not by its path.
    resources.write("another.fs", "/*{}*/another");
    ShaderISF elsewhere = glow();
    elsewhere.resourcePath = resources.path("another.fs");
    EXPECT_EQ(only<SettingsEffectISF>(elsewhere)->GetPixelShader(), "first");
    ShaderISF another("another");
    another.resourcePath = elsewhere.resourcePath;
    EXPECT_EQ(only<SettingsEffectISF>(another)->GetPixelShader(), "another");

    replaceFactory();
    EXPECT_EQ(only<SettingsEffectISF>(glow())->GetPixelShader(), "second");
}

TEST_F(IsfConversion, AFileThatCannotBeReadIsRememberedAsEmptyTexts)
{
    std::string const empty = settings("SettingsEffectISF", R"(["SetConfig", ""], ["SetPixelShader", ""])");
    Converted const missing = convert(glow());
    EXPECT_EQ(missing.stageCode, 18);
    EXPECT_THAT(missing.settings, ElementsAre(empty));
    EXPECT_THAT(missing.warnings, ElementsAre(testing::HasSubstr("glow.fs\": there is no such file")));
    EXPECT_THAT(missing.log, IsEmpty());

    resources.write("glow.fs", "/*{}*/late");
    Converted const again = convert(glow());
    EXPECT_THAT(again.settings, ElementsAre(empty));
    EXPECT_THAT(again.log, IsEmpty());
    replaceFactory();
    EXPECT_EQ(only<SettingsEffectISF>(glow())->GetPixelShader(), "late");
}

TEST_F(IsfConversion, RelativePathsAreBelowTheWorkingFolder)
{
    resources.write("glow.fs", "/*{}*/pixels");
    ShaderISF effect("glow");
    effect.resourcePath = "nowhere/../glow.fs";
    QString const before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(resources.folder()));
    EXPECT_EQ(only<SettingsEffectISF>(effect)->GetPixelShader(), "pixels");
    ASSERT_TRUE(QDir::setCurrent(before));
}

TEST_F(IsfConversion, WithoutAPathTheRegistryFindsTheFile)
{
    resources.write("glow.fs", "/*{}*/pixels");
    resources.add("no resource", "glow.fs");
    EXPECT_EQ(only<SettingsEffectISF>(ShaderISF())->GetPixelShader(), "pixels");
}

// 107 bytes: an empty line first, no line end last.
std::string const passThrough = "\n"
                                "varying vec2 TexCoord0;\n"
                                "uniform sampler2D tex;\n"
                                "\n"
                                "void main() {\n"
                                "\tgl_FragColor = texture2D(tex, TexCoord0);\n"
                                "}";

class ExternalShaderConversion : public ShadersConversion
{
protected:
    void SetUp() override { resources.add("shader", "shader.frag"); }

    // The shader that the engine runs.
    static std::string shaderOf(char const * resource)
    {
        ExternalShader effect;
        effect.shaderResource = resource;
        return only<SettingsEffectTemplateQES>(effect)->GetShader();
    }
};

TEST_F(ExternalShaderConversion, RunsInOpenGl)
{
    ASSERT_EQ(passThrough.size(), 107U);
    Converted const converted = convert(ExternalShader());
    EXPECT_EQ(converted.stageCode, 2);
    EXPECT_EQ(converted.implementation, "OGL");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsEffectTemplateQES",
            R"(["SetVersion", 0], ["SetIntensity", -1], ["SetShader", "\nvarying vec2 TexCoord0;\nuniform sampler2D )"
            R"(tex;\n\nvoid main() {\n\tgl_FragColor = texture2D(tex, TexCoord0);\n}"])")));
    EXPECT_EQ(only<SettingsEffectTemplateQES>(ExternalShader())->GetShader(), passThrough);
}

TEST_F(ExternalShaderConversion, PassesTheShaderOfTheFile)
{
    resources.write("shader.frag", "runs");
    ExternalShader effect;
    effect.apiVersion = -7;
    effect.supportsIntensity = true;
    effect.intensity = 0.25;
    effect.shaderResource = "shader";
    EXPECT_THAT(convert(effect).settings, ElementsAre(settings("SettingsEffectTemplateQES",
                                              R"(["SetVersion", -7], ["SetIntensity", 0.25], ["SetShader", "runs"])")));
}

TEST_F(ExternalShaderConversion, WithoutAnIntensityPassesMinusOne)
{
    ExternalShader effect;
    effect.intensity = 0.3;
    EXPECT_EQ(only<SettingsEffectTemplateQES>(effect)->GetIntensity(), -1.0F);
    effect.supportsIntensity = true;
    EXPECT_EQ(only<SettingsEffectTemplateQES>(effect)->GetIntensity(), 0.3F);
}

TEST_F(ExternalShaderConversion, WithoutAFileShowsThePictureAsItIs)
{
    EXPECT_EQ(shaderOf(""), passThrough);
    EXPECT_EQ(shaderOf("nowhere"), passThrough);
    EXPECT_EQ(shaderOf("shader"), passThrough);
    resources.write("shader.frag", "");
    EXPECT_EQ(shaderOf("shader"), passThrough);
    // The empty name is no name, whatever was registered as it.
    resources.add("", "unnamed.frag");
    resources.write("unnamed.frag", "runs");
    EXPECT_EQ(shaderOf(""), passThrough);
}

TEST_F(ExternalShaderConversion, AShaderEndsAtTheFirstZeroByte)
{
    resources.write("shader.frag", QByteArray("one\0two", 7));
    EXPECT_EQ(shaderOf("shader"), "one");
    // That leaves nothing of this one, which is no empty file all the same.
    resources.write("shader.frag", QByteArray("\0two", 4));
    EXPECT_EQ(shaderOf("shader"), "");
}

TEST_F(ExternalShaderConversion, ReadsTheFileEachTime)
{
    resources.write("shader.frag", "first");
    EXPECT_EQ(shaderOf("shader"), "first");
    resources.write("shader.frag", "second");
    EXPECT_EQ(shaderOf("shader"), "second");
}

// The same with pictures, which there are in an application only.
class AuxImageConversion : public ShadersConversion
{
protected:
    static char const * programName()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return "CollectionTests";
    }

    // The calls of SetAuxImage, each as its argument.
    static std::vector<std::string> auxImages(char const * resource)
    {
        ExternalShader effect;
        effect.auxImageResource = resource;
        Quoril::Proc::Trace const trace;
        auto const record = Factory::videoEffectSettings(effect, {});
        std::vector<std::string> images;
        for (auto const & call : trace.calls(*record.settings.at(0)))
            if (call.setter == "SetAuxImage")
                images.push_back(call.arguments.at(0).toString());
        return images;
    }

    std::string m_name = programName();
    char * m_arguments[2] = {m_name.data(), nullptr};
    int m_count = 1;
    QGuiApplication m_application{m_count, m_arguments};
};

TEST_F(AuxImageConversion, GivesThePicture)
{
    QImage drawn(3, 2, QImage::Format_RGB32);
    drawn.fill(0xFF0A141E);
    drawn.setPixel(2, 1, 0xFF010203);
    ASSERT_TRUE(drawn.save(resources.path("paper.png")));
    resources.add("paper", "paper.png", Resource::Type::Image);
    EXPECT_THAT(auxImages("paper"), ElementsAre(R"({"width": 3, "height": 2})"));

    ExternalShader effect;
    effect.auxImageResource = "paper";
    auto const image = only<SettingsEffectTemplateQES>(effect)->GetAuxImage();
    // Nothing but the handler keeps the pixels.
    ASSERT_EQ(image.use_count(), 1);
    auto const pixel = [&](int index) {
        QRgb color = 0;
        std::memcpy(&color, image->pixels + sizeof(QRgb) * static_cast<std::size_t>(index), sizeof(QRgb));
        return color;
    };
    EXPECT_EQ(pixel(0), 0xFF0A141EU);
    EXPECT_EQ(pixel(5), 0xFF010203U);
}

TEST_F(AuxImageConversion, ANameWithoutAPictureIsToldAsNull)
{
    resources.add("missing", "missing.png", Resource::Type::Image);
    resources.add("text", "text.png", Resource::Type::Image);
    resources.write("text.png", "no picture");
    resources.add("empty", "empty.png", Resource::Type::Image);
    resources.write("empty.png", "");
    for (char const * const name : {"nowhere", "missing", "text", "empty"}) {
        SCOPED_TRACE(name);
        EXPECT_THAT(auxImages(name), ElementsAre("null"));
    }
}

TEST_F(AuxImageConversion, NoNameIsNoCall)
{
    Testing::writeImage(resources.path("paper.png"), 3, 2);
    resources.add("", "paper.png", Resource::Type::Image);
    EXPECT_THAT(auxImages(""), IsEmpty());
}

TEST_F(ExternalShaderConversion, WithoutAnApplicationThereIsNoPicture)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    Testing::writeImage(resources.path("paper.png"), 3, 2);
    resources.add("paper", "paper.png", Resource::Type::Image);
    ExternalShader effect;
    effect.auxImageResource = "paper";
    EXPECT_EQ(only<SettingsEffectTemplateQES>(effect)->GetAuxImage(), nullptr);
}

TEST_F(ShadersConversion, ChecksTheClass)
{
    for (QString const & id : {Id::Lut, Id::ShaderISF, Id::ExternalShader})
        EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(id, id), {}), std::bad_cast);
}

} // namespace
