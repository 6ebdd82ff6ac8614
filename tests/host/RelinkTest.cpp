// effectctl relink
#include <EditorModel/EffectArchive.h>
#include <effects/Shaders.h>
#include <inspect/Hash.h>

#include <tests/support/Folder.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using Testing::Folder;

struct RelinkCommand : testing::Test
{
    RelinkCommand()
    {
        for (char const * const name : {"cold", "warm"}) {
            Effect::Lut lut(name);
            lut.resourcePath = QString("/gone/%1.cube").arg(name);
            folder.write(std::string("in/") + name + ".json", Effect::Archive::toJson(lut));
        }
        folder.write("luts/warm.cube", "table");
    }

    QString in(char const * name) const { return QString::fromStdString(folder.path(name)); }
    std::string pathIn(char const * name) const
    {
        return Effect::Archive::fromJson(folder.read(name))->resourcePath.toStdString();
    }

    Folder folder;
};

TEST_F(RelinkCommand, GoesOnBehindAFileThatIsNotFound)
{
    auto const run = effectctl({"relink", in("in"), "--in", in("luts")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(
        run.errors, "effectctl: " + folder.path("in/cold.json") + ": cold.cube: no file of this name was found\n");
    EXPECT_EQ(run.output, folder.path("in/warm.json") + ": /gone/warm.cube -> " + folder.path("luts/warm.cube") + '\n');
    EXPECT_EQ(pathIn("in/cold.json"), "/gone/cold.cube");
    EXPECT_EQ(pathIn("in/warm.json"), folder.path("luts/warm.cube"));
    // A second time there is nothing to do.
    auto const again = effectctl({"relink", in("in/warm.json"), "--in", in("luts"), "--json"});
    EXPECT_EQ(again.status, 0) << again.errors;
    EXPECT_EQ(
        json::parse(again.output), (json::array({{{"file", folder.path("in/warm.json")}, {"links", json::array()}}})));
}

TEST_F(RelinkCommand, KnowsHashes)
{
    folder.write("more/renamed.cube", "cold table");
    folder.write("sums", Effect::Inspect::sha256("cold table") + "  cold.cube\n");
    auto const run = effectctl({"relink", in("in"), "--in", in("luts"), in("more"), "--hashes", in("sums"), "--json"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(json::parse(run.output)[0]["links"],
        (json::array({{{"before", "/gone/cold.cube"}, {"after", folder.path("more/renamed.cube")}}})));
    EXPECT_EQ(pathIn("in/cold.json"), folder.path("more/renamed.cube"));
    EXPECT_EQ(effectctl({"relink", in("in"), "--in", in("luts"), "--hashes", in("luts/warm.cube")}).errors,
        "effectctl: " + folder.path("luts/warm.cube") + ": line 1 is no SHA-256 with the name of a file\n");
}

TEST_F(RelinkCommand, NeedsAFolder)
{
    EXPECT_EQ(effectctl({"relink", in("in")}).status, 2);
    EXPECT_EQ(effectctl({"relink", in("in"), "--in", in("none")}).errors,
        "effectctl: " + folder.path("none") + ": No such file or directory\n");
}

} // namespace
