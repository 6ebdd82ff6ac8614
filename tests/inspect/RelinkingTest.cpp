#include <inspect/Relinking.h>

#include <filesystem>

#include <EditorModel/EffectArchive.h>
#include <effects/Holder.h>
#include <effects/Shaders.h>
#include <inspect/Hash.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;
using testing::ElementsAre;
using Testing::failureOf;
using Testing::Folder;
using testing::IsEmpty;

std::string archiveWith(std::string const & path)
{
    Effect::Lut lut("warm");
    lut.resourcePath = QString::fromStdString(path);
    return Effect::Archive::toJson(lut);
}

std::string pathIn(std::string const & text)
{
    return json::parse(text)["Effect::VideoEffect"]["Effect::Object"]["resourcePath"];
}

struct RelinkingTest : testing::Test
{
    Relinked relink(std::string const & bytes, KnownHashes const & hashes = {})
    {
        FileIndex index({folder.path("luts")});
        return relinked(bytes, folder.path("presets/file.json"), index, hashes);
    }

    Folder folder;
};

TEST_F(RelinkingTest, FindsAFileByItsName)
{
    std::string const found = folder.write("luts/deep/warm.cube", "table");
    for (std::string const & old : std::vector<std::string>{"/gone/warm.cube", "warm.cube", "D:\\film\\warm.cube"}) {
        Relinked const result = relink(archiveWith(old));
        EXPECT_EQ(pathIn(result.bytes), found);
        ASSERT_EQ(result.links.size(), 1U);
        EXPECT_EQ(result.links[0].before, old);
        EXPECT_EQ(result.links[0].after, found);
        EXPECT_THAT(result.problems, IsEmpty());
    }
}

TEST_F(RelinkingTest, LeavesWhatIsFoundAlone)
{
    std::string const there = folder.write("old/warm.cube", "table");
    folder.write("luts/warm.cube", "table");
    std::string const text = archiveWith(there) + '\n';
    Relinked const result = relink(text);
    EXPECT_EQ(result.bytes, text);
    EXPECT_THAT(result.links, IsEmpty());
    EXPECT_THAT(relink(archiveWith("")).links, IsEmpty());
}

TEST_F(RelinkingTest, ReportsWhatIsNowhere)
{
    folder.write("luts/cold.cube", "table");
    std::string const text = archiveWith("/gone/warm.cube");
    Relinked const result = relink(text);
    EXPECT_EQ(result.bytes, text);
    EXPECT_THAT(result.problems, ElementsAre("warm.cube: no file of this name was found"));
}

TEST_F(RelinkingTest, ChoosesAmongEqualFilesAlone)
{
    std::string const first = folder.write("luts/a/warm.cube", "table");
    folder.write("luts/b/warm.cube", "table");
    EXPECT_EQ(pathIn(relink(archiveWith("/gone/warm.cube")).bytes), first);
    std::string const other = folder.write("luts/b/warm.cube", "another");
    EXPECT_THAT(relink(archiveWith("/gone/warm.cube")).problems,
        ElementsAre("warm.cube: there are different files of this name: " + first + " and " + other));
    // Unless it is known which one it was.
    KnownHashes const hashes{{"warm.cube", {sha256("another")}}};
    EXPECT_EQ(pathIn(relink(archiveWith("/gone/warm.cube"), hashes).bytes), other);
}

TEST_F(RelinkingTest, FindsARenamedFileByItsHash)
{
    std::string const found = folder.write("luts/renamed.cube", "table");
    KnownHashes const hashes{{"warm.cube", {sha256("table")}}};
    EXPECT_EQ(pathIn(relink(archiveWith("/gone/warm.cube"), hashes).bytes), found);
    folder.write("luts/renamed.cube", "changed");
    EXPECT_THAT(relink(archiveWith("/gone/warm.cube"), hashes).problems,
        ElementsAre("warm.cube: no file of this name or with its SHA-256 was found"));
    std::string const wrong = folder.write("luts/warm.cube", "wrong");
    EXPECT_THAT(relink(archiveWith("/gone/warm.cube"), hashes).problems,
        ElementsAre("warm.cube: " + wrong + " has another SHA-256, and no other file has it"));
}

TEST_F(RelinkingTest, KeepsWhatIsUnknown)
{
    std::string const found = folder.write("luts/warm.cube", "table");
    json document = json::parse(archiveWith("/gone/warm.cube"));
    document["newer"] = "kept";
    EXPECT_EQ(json::parse(relink(document.dump()).bytes)["newer"], "kept");
}

TEST_F(RelinkingTest, AnItemsPathIsRelativeWithinItsFolder)
{
    folder.write("luts/presets/tables/warm.cube", "table");
    json const item{{"categories", {"a"}}, {"effect", json::parse(archiveWith("gone/warm.cube"))}};
    FileIndex index({folder.path("luts")});
    Relinked const inside = relinked(item.dump(), folder.path("luts/presets/warm.effect.json"), index, {});
    EXPECT_EQ(pathIn(json::parse(inside.bytes)["effect"].dump()), "tables/warm.cube");
    EXPECT_EQ(json::parse(inside.bytes)["categories"], json({"a"}));
    Relinked const outside = relinked(item.dump(), folder.path("elsewhere/warm.effect.json"), index, {});
    EXPECT_EQ(pathIn(json::parse(outside.bytes)["effect"].dump()), folder.path("luts/presets/tables/warm.cube"));
}

TEST_F(RelinkingTest, LooksIntoHoldersOfBothForms)
{
    std::string const found = folder.write("luts/warm.cube", "table");
    Effect::EffectsHolder holder;
    auto lut = std::make_unique<Effect::Lut>("warm");
    lut->resourcePath = "/gone/warm.cube";
    holder.addEffect(std::move(lut));
    std::string const bytes = relink(Effect::Archive::toBinary(holder)).bytes;
    ASSERT_TRUE(Effect::Archive::isBinary(bytes));
    auto const back = Effect::Archive::fromBinary(bytes);
    EXPECT_EQ(dynamic_cast<Effect::EffectsHolder &>(*back).effects.front()->resourcePath.toStdString(), found);
}

TEST_F(RelinkingTest, RefusesWhatIsNoArchive)
{
    std::filesystem::create_directory(folder.path("luts"));
    EXPECT_NE(failureOf([&] { relink("{"); }), "");
    EXPECT_EQ(
        failureOf([&] { FileIndex({folder.path("none")}); }), folder.path("none") + ": No such file or directory");
}

/// The list of a pack with one file in it.
std::string list(char const * path, std::string const & hash)
{
    json const file{{"path", path}, {"sha256", hash}, {"role", "resource"}};
    return json{{"files", json::array({file})}}.dump();
}

TEST(Hashes, AreReadFromListsOfBothKinds)
{
    Folder const folder;
    std::string const one = sha256("one");
    std::string const two = sha256("two");
    EXPECT_EQ(readHashes(folder.write("sums", one + "  deep/warm.cube\n" + two + " *warm.cube\n")),
        (KnownHashes{{"warm.cube", {one, two}}}));
    EXPECT_EQ(readHashes(folder.write("list.json", list("deep/warm.cube", one))), (KnownHashes{{"warm.cube", {one}}}));
    std::string const bad = folder.write("bad", one + "  a\nno sum\n");
    EXPECT_EQ(failureOf([&] { readHashes(bad); }), bad + ": line 2 is no SHA-256 with the name of a file");
    EXPECT_NE(failureOf([&] { readHashes(folder.write("bad", "{}")); }), "");
}

TEST(Hashes, AreThoseOfTheNearestPack)
{
    Folder const folder;
    folder.write("pack.json", list("outer.cube", sha256("outer")));
    folder.write("in/pack.json", list("inner.cube", sha256("inner")));
    EXPECT_EQ(hashesBeside(folder.path("in/deep/a.json")), (KnownHashes{{"inner.cube", {sha256("inner")}}}));
    EXPECT_EQ(hashesBeside(folder.path("a.json")), (KnownHashes{{"outer.cube", {sha256("outer")}}}));
}

} // namespace
