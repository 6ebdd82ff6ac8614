#include <support/Resources.h>

#include "Effectctl.h"

#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;

class LutCommand : public testing::Test
{
protected:
    void SetUp() override
    {
        files.write("curve.cube", "TITLE \"A \x1b[31mcurve\"\nLUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
        files.write("cube.cube", "LUT_3D_SIZE 2\n" + QByteArray("0 0 0\n").repeated(8));
        files.write("bad.cube", "LUT_1D_SIZE 2\n0 0 0\n1 oops 1\n");
        files.write("unknown.txt", "no table at all\n");
    }

    QString path(char const * file) const { return files.path(file); }
    std::string text(char const * file) const { return path(file).toStdString(); }

    Testing::TemporaryResources files;
};

TEST_F(LutCommand, PrintsATable)
{
    auto const run = effectctl({"lut", path("curve.cube"), path("cube.cube")});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "FILE\tFORMAT\tSIZE\tTITLE\n" + text("curve.cube") + "\tcube\t2\t\"A \\u001b[31mcurve\"\n" +
                              text("cube.cube") + "\tcube\t2x2x2\t\"\"\n");
    EXPECT_EQ(run.errors, "");
}

TEST_F(LutCommand, PrintsADocument)
{
    auto const run = effectctl({"lut", "--json", path("curve.cube"), path("cube.cube")});
    EXPECT_EQ(run.status, 0) << run.errors;
    json const expected{
        {{"file", text("curve.cube")}, {"format", "cube"}, {"size", {2, 1, 1}}, {"title", "A \x1b[31mcurve"}},
        {{"file", text("cube.cube")}, {"format", "cube"}, {"size", {2, 2, 2}}, {"title", ""}}};
    EXPECT_EQ(json::parse(run.output), expected);
}

TEST_F(LutCommand, GoesOnBehindABadFile)
{
    auto const run =
        effectctl({"lut", "--json", path("bad.cube"), path("nowhere"), path("unknown.txt"), path("cube.cube")});
    EXPECT_EQ(run.status, 1);
    json const document = json::parse(run.output);
    ASSERT_EQ(document.size(), 4U);
    std::string lines;
    for (std::size_t index = 0; index < 3; ++index)
        lines += "effectctl: " + document[index]["error"].get<std::string>() + '\n';
    EXPECT_EQ(run.errors, lines);
    EXPECT_EQ(document[0]["file"], text("bad.cube"));
    EXPECT_EQ(document[0]["error"].get<std::string>().rfind(text("bad.cube") + ": line 3: ", 0), 0U) << lines;
    EXPECT_EQ(document[1]["error"], text("nowhere") + ": No such file or directory");
    EXPECT_EQ(document[2]["error"],
        text("unknown.txt") + ": begins like none of the formats that are read: cube, 3dl, spi3d, csp");
    EXPECT_EQ(document[3]["format"], "cube");
}

TEST_F(LutCommand, PrintsNoTableOfBadFiles)
{
    auto const run = effectctl({"lut", path("unknown.txt")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
}

TEST_F(LutCommand, ReadsStandardInput)
{
    auto const run = effectctl({"lut", "--json", "-"}, "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(json::parse(run.output)[0]["file"], "-");
}

TEST_F(LutCommand, TitlesNeedBeNoUtf8)
{
    files.write("latin1.cube", "TITLE \"W\xe4rme\"\nLUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    auto const run = effectctl({"lut", "--json", path("latin1.cube")});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(json::parse(run.output)[0]["title"], "W\uFFFDrme");
}

TEST_F(LutCommand, DevicesWithoutEndAreRefused)
{
    auto const run = effectctl({"lut", "/dev/zero"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "effectctl: /dev/zero: larger than 256 MiB\n");
}

TEST_F(LutCommand, NeedsAFile)
{
    EXPECT_EQ(effectctl({"lut"}).status, 2);
    EXPECT_EQ(effectctl({"lut", "--no-such-option", path("cube.cube")}).status, 2);
    auto const help = effectctl({"lut", "--help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("effectctl lut warm.cube"), std::string::npos);
}

} // namespace
