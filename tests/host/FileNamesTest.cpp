// File names are bytes: those that are no UTF-8 are read and written like any other, in every locale.
#include <EditorModel/EffectArchive.h>
#include <effects/Geometry.h>

#include <cstdlib>
#include <filesystem>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using Testing::shell;

/// Lines of the shell in a folder that has `caf\xe9` in its files' names, and in a locale.
class FileNames : public testing::TestWithParam<char const *>
{
protected:
    void SetUp() override
    {
        std::string name = (std::filesystem::temp_directory_path() / "names.XXXXXX").native();
        ASSERT_NE(::mkdtemp(name.data()), nullptr);
        m_folder = name;
        auto const made = run("$effectctl show --class Effect::Crop --json >$'caf\\xe9.json'");
        ASSERT_EQ(made.status, 0) << made.errors;
    }

    // Qt's own temporary folders cannot delete what they cannot name.
    void TearDown() override { std::filesystem::remove_all(m_folder); }

    Testing::Run run(QString const & line) const
    {
        return shell("export LC_ALL=" + QString(GetParam()) + "\ncd " + QString::fromStdString(m_folder) + "\n" + line);
    }

    /// The one element of the document that the line prints, which must be valid UTF-8.
    json element(QString const & line) const
    {
        auto const result = run(line);
        EXPECT_EQ(result.status, 0) << result.errors;
        EXPECT_EQ(result.errors, "");
        json const document = json::parse(result.output, nullptr, false);
        return document.size() == 1 ? document[0] : json();
    }

private:
    std::string m_folder;
};

INSTANTIATE_TEST_SUITE_P(Locales, FileNames, testing::Values("C", "C.UTF-8"));

TEST_P(FileNames, FilesAreReadAndWritten)
{
    auto const archived =
        run("$effectctl archive $'caf\\xe9.json' $'\\xff\\xc3\\xa9 \\xc3.bin' && cat $'\\xff\\xc3\\xa9 \\xc3.bin'");
    EXPECT_EQ(archived.status, 0) << archived.errors;
    EXPECT_EQ(archived.output, Effect::Archive::toBinary(Effect::Crop()));
    EXPECT_EQ(element("$effectctl convert --json $'\\xff\\xc3\\xa9 \\xc3.bin'")["file"], "\uFFFD\u00E9 \uFFFD.bin");
    // A name that is UTF-8 but for the locale "C" no text.
    EXPECT_EQ(
        run("$effectctl archive $'caf\\xe9.json' $'\\xc3\\xbc.json' && $effectctl show $'\\xc3\\xbc.json'").status, 0);
}

TEST_P(FileNames, FoldersAndPatternsFindThem)
{
    for (char const * const argument : {"./", "'caf*.json'", "$'caf\\xe9*'"})
        EXPECT_EQ(element(QString("$effectctl tool --json ") + argument)["tool"], 5) << argument;
    run("mkdir $'dir\\xfe' && mv *.json $'dir\\xfe/'");
    EXPECT_EQ(element("$effectctl tool --json $'dir\\xfe'")["file"], "dir\uFFFD/caf\uFFFD.json");
}

TEST_P(FileNames, ResourcesAndTracksAreRead)
{
    EXPECT_EQ(run("printf 'LUT_1D_SIZE 2\\n0 0 0\\n1 1 1\\n' >$'\\xe9.cube'").status, 0);
    EXPECT_EQ(element("$effectctl lut --json $'\\xe9.cube'")["size"], json({2, 1, 1}));
    auto const lut = run("echo '{\"class\": \"Effect::Lut\"}' |"
                         "$effectctl convert --batch --resource $'no resource=\\xe9.cube'");
    EXPECT_EQ(lut.status, 0) << lut.errors;
    EXPECT_THAT(lut.output, HasSubstr(R"(["SetTable",{"size":[2,1,1]}])"));

    EXPECT_EQ(run("echo '{\"frames\": [{\"time\": 0, \"rect\": [0, 0, 0.5, 0.5]}]}' >$'\\xe9.track.json'").status, 0);
    auto const mask = run("echo '{\"class\": \"Effect::Mask\", \"fields\": {\"concealFrames\": [{\"Effect::Frame\": "
                          "{\"trackingId\": \"face\"}}]}, \"video\": {\"duration\": 1000000}}' |"
                          "$effectctl convert --batch --track $'face=\\xe9.track.json'");
    EXPECT_EQ(mask.status, 0) << mask.errors;
    json const frames = json::parse(mask.output)["settings"][0]["calls"][0][1][0];
    EXPECT_EQ(frames[0]["matrix"][0], 0.5) << mask.output;
}

TEST_P(FileNames, ItemsBringTheirFiles)
{
    run("printf 'LUT_1D_SIZE 2\\n0 0 0\\n1 1 1\\n' >$'\\xc3\\xa9.cube'");
    run("printf '{\"effect\": {\"$meta\": {\"class\": \"Effect::Lut\"}, \"Effect::VideoEffect\": {\"Effect::Object\":"
        "{\"resource\": {\"name\": \"x\", \"type\": 4}, \"resourcePath\": \"\\xc3\\xa9.cube\"}}}}' "
        ">$'\\xe9.effect.json'");
    EXPECT_EQ(element("$effectctl convert --json $'\\xe9.effect.json'")["settings"][0]["calls"][0][0], "SetTable");
    // From the catalogue as well.
    run("mkdir -p stock/Luts && mv $'\\xc3\\xa9.cube' $'\\xe9.effect.json' stock/Luts/");
    auto const listed = run("$effectctl catalogue --convert --json --stock stock --user stock");
    EXPECT_EQ(listed.status, 0) << listed.errors;
    EXPECT_EQ(json::parse(listed.output)["summary"]["converted"], 1);
}

TEST_P(FileNames, MessagesAreUtf8)
{
    EXPECT_EQ(run("$effectctl show $'n\\xf6'").errors, "effectctl: n\uFFFD: No such file or directory\n");
    EXPECT_EQ(run("$effectctl archive $'caf\\xe9.json' $'\\xf6/x.bin'").errors,
        "effectctl: \uFFFD/x.bin: No such file or directory\n");
    EXPECT_THAT(run("$effectctl archive $'caf\\xe9.json' $'x.\\xf6'").errors, HasSubstr("x.\uFFFD ends neither"));
    EXPECT_EQ(run("mkdir $'s\\xf6'; $effectctl catalogue --stock $'s\\xf6'").errors,
        "effectctl: s\uFFFD: items cannot be read from a folder whose name is not UTF-8\n");
}

} // namespace
