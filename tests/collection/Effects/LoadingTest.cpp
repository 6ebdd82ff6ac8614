#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/MotionTracking.h>
#include <EditorSettings/Settings.h>
#include <effects/Blur.h>
#include <effects/Light.h>
#include <effects/Mask.h>
#include <effects/Shaders.h>
#include <support/Conversion.h>
#include <support/Images.h>
#include <support/Resources.h>
#include <support/Tracks.h>

#include <QGuiApplication>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

// Conversions go on without a file that is missing or broken. Each logs one line for it, at severity
// WARNING, and leaves the lines at severity ERROR to effects that do not convert.

namespace {

using namespace Effect;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Matcher;
using testing::StartsWith;

using Lines = std::vector<std::string>;

class Loading : public Testing::ConversionTest
{
protected:
    std::string path(char const * file) const { return resources.path(file).toStdString(); }

    /// The warnings of a conversion that gives a record and no error.
    static Lines warnings(Object const & effect)
    {
        auto const converted = Testing::convert(effect, Factory::VideoParams{{1920, 1080}, 1000});
        EXPECT_FALSE(converted.settings.empty());
        EXPECT_THAT(converted.log, IsEmpty());
        for (std::string const & warning : converted.warnings)
            EXPECT_EQ(warning.find('\n'), std::string::npos) << warning;
        return converted.warnings;
    }

    Testing::TemporaryResources resources;
};

class LutLoading : public Loading
{
protected:
    void add(char const * file, QByteArray const & bytes)
    {
        resources.add(file, file);
        resources.write(file, bytes);
    }
};

QByteArray const table = "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n";

TEST_F(LutLoading, WarnsOfATableThatCannotBeHad)
{
    resources.add("gone.cube", "gone.cube");
    resources.add("folder.cube", ".");
    add("empty.cube", "");
    add("zero.cube", QByteArray(3, '\0'));
    add("unknown.cube", "no table at all");
    add("broken.cube", "\n\n# a comment\nLUT_1D_SIZE 2\n0 0 0\n0 \xC3 0\n");
    struct Row
    {
        char const * name;
        std::string problem;
    };
    Row const rows[] = {
        {"nowhere.cube", "no resource is registered as \"nowhere.cube\""},
        {"gone.cube", path("gone.cube") + ": no such file"},
        {"folder.cube", path(".") + ": is not a regular file"},
        {"empty.cube", path("empty.cube") + ": is empty"},
        {"zero.cube", path("zero.cube") + ": begins with a zero byte"},
        {"unknown.cube",
            path("unknown.cube") + ": begins like none of the formats that are read: cube, 3dl, spi3d, csp"},
        {"broken.cube", path("broken.cube") + ": line 6: expected three finite numbers, found \"?\""},
    };
    for (Row const & row : rows) {
        std::string const line = "Couldn't load LUT \"" + std::string(row.name) + "\": " + row.problem;
        // Each record lists the missing files, whether the file was read again or not.
        EXPECT_THAT(warnings(Lut(row.name)), ElementsAre(line));
        EXPECT_THAT(warnings(Lut(row.name)), ElementsAre(line));
    }
}

TEST_F(LutLoading, IsSilentOtherwise)
{
    add("good.cube", table);
    EXPECT_THAT(warnings(Lut("good.cube")), IsEmpty());
    // What names no table misses none.
    EXPECT_THAT(warnings(Lut("")), IsEmpty());

    resources.add("late.cube", "late.cube");
    EXPECT_EQ(warnings(Lut("late.cube")).size(), 1U);
    resources.write("late.cube", table);
    EXPECT_THAT(warnings(Lut("late.cube")), IsEmpty());
}

TEST_F(LutLoading, QuotesTheName)
{
    EXPECT_THAT(warnings(Lut("two\nlines \"of\" it")),
        ElementsAre(StartsWith(R"(Couldn't load LUT "two\nlines \"of\" it": no resource is registered as "two)")));
}

class IsfLoading : public Loading
{
protected:
    ShaderISF shader(char const * file, char const * inputs = "") const
    {
        ShaderISF effect(file);
        effect.resourcePath = resources.path(file);
        effect.inputs = inputs;
        return effect;
    }
};

TEST_F(IsfLoading, WarnsOfAShaderThatCannotBeHad)
{
    resources.write("broken.fs", "/*{\xC3\xA9}*/ void main() {}");
    std::string const again = ": it could not be loaded before and is not tried again";
    std::string const missing = "Couldn't load ISF shader \"missing.fs\"";
    EXPECT_THAT(warnings(shader("missing.fs")),
        ElementsAre(missing + ": \"" + path("missing.fs") + "\": there is no such file"));
    EXPECT_THAT(warnings(shader("missing.fs")), ElementsAre(missing + again));
    std::string const broken = "Couldn't load ISF shader \"broken.fs\"";
    EXPECT_THAT(warnings(shader("broken.fs")),
        ElementsAre(StartsWith(broken + ": \"" + path("broken.fs") + "\": line 1, column 4: syntax error")));
    // The user's inputs make no shader.
    EXPECT_THAT(warnings(shader("broken.fs", "{}")), ElementsAre(broken + again));
}

TEST_F(IsfLoading, IsSilentOtherwise)
{
    resources.write("bare.fs", "/*{}*/");
    for (int round = 0; round < 2; ++round) {
        EXPECT_THAT(warnings(shader("bare.fs")), IsEmpty());
        EXPECT_THAT(warnings(shader("bare.fs", "{}")), IsEmpty());
    }
}

class ExternalShaderLoading : public Loading
{
protected:
    static ExternalShader shader(char const * resource, char const * image = "")
    {
        ExternalShader effect;
        effect.shaderResource = resource;
        effect.auxImageResource = image;
        return effect;
    }
};

TEST_F(ExternalShaderLoading, WarnsOfAShaderThatCannotBeHad)
{
    resources.add("gone.frag", "gone.frag");
    resources.add("empty.frag", "empty.frag");
    resources.write("empty.frag", "");
    resources.add("zero.frag", "zero.frag");
    resources.write("zero.frag", QByteArray("\0main", 5));
    struct Row
    {
        char const * name;
        std::string problem;
    };
    Row const rows[] = {
        {"nowhere.frag", "no resource is registered as \"nowhere.frag\""},
        {"gone.frag", path("gone.frag") + ": no such file"},
        {"empty.frag", path("empty.frag") + ": is empty"},
        {"zero.frag", path("zero.frag") + ": begins with a zero byte"},
    };
    for (Row const & row : rows)
        EXPECT_THAT(warnings(shader(row.name)),
            ElementsAre("Couldn't load shader \"" + std::string(row.name) + "\": " + row.problem));
}

TEST_F(ExternalShaderLoading, WarnsOfAPictureThatCannotBeHad)
{
    ASSERT_EQ(QCoreApplication::instance(), nullptr);
    resources.add("gone.png", "gone.png", Resource::Type::Image);
    Testing::writeImage(resources.path("paper.png"), 3, 2);
    resources.add("paper.png", "paper.png", Resource::Type::Image);
    EXPECT_THAT(warnings(shader("", "nowhere.png")),
        ElementsAre("Couldn't load image \"nowhere.png\": no resource is registered as \"nowhere.png\""));
    EXPECT_THAT(warnings(shader("", "gone.png")),
        ElementsAre("Couldn't load image \"gone.png\": " + path("gone.png") + ": no such file"));
    EXPECT_THAT(warnings(shader("", "paper.png")),
        ElementsAre("Couldn't load image \"paper.png\": " + path("paper.png") + ": pictures need a QGuiApplication"));
    // Both files of one effect.
    EXPECT_THAT(warnings(shader("nowhere.frag", "nowhere.png")),
        ElementsAre(StartsWith("Couldn't load shader"), StartsWith("Couldn't load image")));
}

TEST_F(ExternalShaderLoading, IsSilentOtherwise)
{
    resources.add("good.frag", "good.frag");
    resources.write("good.frag", "void main() {}");
    EXPECT_THAT(warnings(shader("good.frag")), IsEmpty());
    EXPECT_THAT(warnings(shader("")), IsEmpty());
}

class StockImageLoading : public Loading
{
protected:
    static QString mask(char const * file) { return ::Settings::stockBlurMasksPath() + '/' + file; }
    static QString object(char const * file) { return ::Settings::stockFlyingObjectsPath() + '/' + file; }

    static BokehBlur bokeh(int preset)
    {
        BokehBlur effect;
        effect.preset = static_cast<BokehBlur::Preset>(preset);
        return effect;
    }
    static FlyingObjects flying(int preset)
    {
        FlyingObjects effect;
        effect.preset = static_cast<FlyingObjects::Preset>(preset);
        return effect;
    }

    static void expectWarning(Object const & effect, QString const & file, Matcher<std::string> const & problem)
    {
        std::string const start = "Couldn't load image \"" + file.toStdString() + "\": ";
        for (int round = 0; round < 2; ++round) {
            Lines const lines = warnings(effect);
            ASSERT_EQ(lines.size(), 1U);
            ASSERT_THAT(lines[0], StartsWith(start));
            EXPECT_THAT(lines[0].substr(start.size()), problem);
        }
    }

    Testing::TemporaryStock stock;
};

TEST_F(StockImageLoading, WarnsOfAPictureThatCannotBeHad)
{
    expectWarning(bokeh(0), mask("bang.png"), "no such file");
    expectWarning(flying(4), object("gift box.png"), "no such file");

    // A picture, but no PNG.
    Testing::writeImage(mask("blossom.png"), 3, 2, Qt::white, "BMP");
    expectWarning(bokeh(1), mask("blossom.png"), testing::Not(""));
    Testing::writeImage(object("bunny.png"), 64, 64, Qt::red);
    ASSERT_TRUE(QFile::resize(object("bunny.png"), 60));
    expectWarning(flying(2), object("bunny.png"), testing::Not(""));

    ASSERT_TRUE(QDir().mkpath(mask("bokeh.png")));
    expectWarning(bokeh(2), mask("bokeh.png"), "is not a regular file");
    // The pipe has no writer, so opening it would block forever.
    ASSERT_EQ(::mkfifo(QFile::encodeName(mask("butterfly.png")).constData(), 0600), 0);
    expectWarning(bokeh(3), mask("butterfly.png"), "is not a regular file");
}

TEST_F(StockImageLoading, IsSilentOtherwise)
{
    Testing::writeImage(mask("bang.png"), 3, 2);
    Testing::writeImage(object("leaf2.png"), 3, 2);
    for (int round = 0; round < 2; ++round) {
        EXPECT_THAT(warnings(bokeh(0)), IsEmpty());
        EXPECT_THAT(warnings(flying(0)), IsEmpty());
    }
}

class TrackLoading : public Loading
{
protected:
    TrackLoading() { ::Settings::setUserRoot(resources.path("user")); }
    ~TrackLoading() override { ::Settings::setUserRoot(QString()); }

    static Mask tracking(QString const & id)
    {
        Mask effect;
        effect.addFrame(*FrameHighlight().setTrackingId(id));
        return effect;
    }
};

TEST_F(TrackLoading, WarnsOfATrackThatCannotBeHad)
{
    Testing::TemporaryTrack const broken("broken", R"({"frames": [{"time": 0}]})");
    EXPECT_THAT(warnings(tracking("broken")), ElementsAre(testing::AllOf(StartsWith("Couldn't read motion track: "),
                                                  testing::EndsWith(": frames[0].rect is missing"))));
    EXPECT_THAT(warnings(tracking("gone")),
        ElementsAre("Couldn't read motion track: " + path("user/Tracks/gone.track.json") + ": no such file"));
    EXPECT_THAT(warnings(tracking("../gone")),
        ElementsAre("Couldn't read motion track: \"../gone\" cannot be the name of a file"));
    Mask both = tracking("gone");
    both.addFrame(*FrameConceal().setTrackingId("gone"));
    EXPECT_EQ(warnings(both).size(), 2U);
}

TEST_F(TrackLoading, IsSilentOtherwise)
{
    Testing::TemporaryTrack const track("good", R"({"frames": [{"time": 0, "rect": [0, 0, 1, 1]}]})");
    EXPECT_THAT(warnings(tracking("good")), IsEmpty());
    EXPECT_THAT(warnings(tracking("")), IsEmpty());
}

} // namespace
