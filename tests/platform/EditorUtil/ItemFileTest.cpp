#include <EditorUtil/ItemFile.h>

#include <stdexcept>
#include <string>

#include <sys/stat.h>
#include <unistd.h>

#include "../../support/FileSizeLimit.h"
#include "../EditorModel/TestEffect.h"
#include "ItemFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace EditorCollection;
using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using Testing::ItemFolder;
using Testing::itemText;

/// What is said of a text that is no item; empty when it is one.
std::string problemOf(std::string const & text)
{
    try {
        parseItem(text, "/folder");
    } catch (std::exception const & error) {
        return error.what();
    }
    return {};
}

std::string problemOfFile(ItemFolder const & folder, std::string const & fileName)
{
    try {
        readItem(folder.nativePath(), fileName);
    } catch (std::exception const & error) {
        return error.what();
    }
    return {};
}

std::string withResource(std::string const & path)
{
    return R"({"effect": {"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"resourcePath": ")" + path +
           R"("}}})";
}

TEST(ParseItem, TakesEffectAndCategories)
{
    auto const item = parseItem(itemText("warm", R"(["category_b", "category_a", "category_b"])"), "/folder");
    EXPECT_EQ(item->payload().tag, "warm");
    EXPECT_EQ(item->payload().id, "the-id");
    EXPECT_THAT(item->categories(), ElementsAre("category_a", "category_b"));
    EXPECT_FALSE(item->userFlagA());
}

TEST(ParseItem, NeedsNoCategoriesAndSkipsOtherKeys)
{
    auto const item = parseItem(R"({"author": ["me"], "effect": {"$meta": {"class": "Sample::Effect"}}})", "/folder");
    EXPECT_THAT(item->categories(), IsEmpty());
}

TEST(ParseItem, TellsWhatIsWrong)
{
    struct Row
    {
        std::string text;
        std::string problem;
    };
    Row const rows[] = {
        {"", "is empty"},
        {" ", "this is no JSON"},
        {"{\"effect\": ", "line 1"},
        {"[]", "is no JSON object"},
        {"{}", "has no key \"effect\""},
        {R"({"effect": null})", "\"effect\" is null"},
        {R"({"effect": 3})", "in \"effect\": "},
        {R"({"effect": {"$meta": {"class": "Sample::Nobody"}}})", "Sample::Nobody"},
        {R"({"effect": {"$meta": {"class": "Sample::Record"}}})", "Sample::Record does not belong here"},
        {R"({"effect": {"$meta": {"class": "Sample::Effect"}, "level": "high"}})", "/level"},
        {R"({"categories": "all", "effect": {"$meta": {"class": "Sample::Effect"}}})", "\"categories\" is no array"},
        {R"({"categories": ["a", 1], "effect": {"$meta": {"class": "Sample::Effect"}}})", "that is no text"},
        {std::string(100'000, '['), "nested more than"},
    };
    for (Row const & row : rows)
        EXPECT_THAT(problemOf(row.text), HasSubstr(row.problem)) << row.text.substr(0, 80);
}

TEST(ParseItem, KnowsTheFileThatItIsGiven)
{
    EXPECT_EQ(parseItem(itemText("warm"), "/folder")->file(), "");
    EXPECT_EQ(parseItem(itemText("warm"), "/folder", "/folder/a.effect.json")->file(), "/folder/a.effect.json");
}

TEST(ParseItem, TakesResourcePathsRelativeToTheFolder)
{
    EXPECT_EQ(parseItem(withResource("warm.cube"), "/folder")->payload().resourcePath, "/folder/warm.cube");
    EXPECT_EQ(parseItem(withResource("./images/a.png"), "/folder")->payload().resourcePath, "/folder/images/a.png");
    EXPECT_EQ(parseItem(withResource("../a.png"), "/folder")->payload().resourcePath, "/a.png");
    EXPECT_EQ(parseItem(withResource("/other/a.png"), "/folder")->payload().resourcePath, "/other/a.png");
    EXPECT_EQ(parseItem(withResource(""), "/folder")->payload().resourcePath, "");
}

TEST(ParseItem, TakesAResourcePathWhereverAReferencePutsIt)
{
    auto const item = parseItem(R"({"effect": {"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"$meta": )"
                                R"({"ref": 7}}, "aside": [{"$meta": {"id": 7}, "resourcePath": "warm.cube"}]}})",
        "/folder");
    EXPECT_EQ(item->payload().resourcePath, "/folder/warm.cube");
}

TEST(ParseItem, RefusesAResourcePathThatIsNoText)
{
    EXPECT_THAT(
        problemOf(R"({"effect": {"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"resourcePath": 3}}})"),
        HasSubstr("/Effect::Object/resourcePath"));
}

TEST(ReadItem, ReadsAFile)
{
    ItemFolder const folder;
    folder.add("Wärme");
    auto const item = readItem(folder.nativePath(), "Wärme.effect.json");
    EXPECT_EQ(item->payload().tag, QString::fromUtf8("Wärme"));
    EXPECT_EQ(item->file(), folder.file("Wärme.effect.json"));
}

TEST(ReadItem, TellsWhyAFileCannotBeRead)
{
    ItemFolder const folder;
    EXPECT_EQ(problemOfFile(folder, "missing.effect.json"), "No such file or directory");

    folder.write("empty.effect.json", "");
    EXPECT_EQ(problemOfFile(folder, "empty.effect.json"), "is empty");

    ASSERT_EQ(::mkdir(folder.file("folder.effect.json").c_str(), 0700), 0);
    EXPECT_EQ(problemOfFile(folder, "folder.effect.json"), "is not a regular file");

    // Nobody writes to it: opening it the plain way would wait forever.
    ASSERT_EQ(::mkfifo(folder.file("pipe.effect.json").c_str(), 0600), 0);
    EXPECT_EQ(problemOfFile(folder, "pipe.effect.json"), "is not a regular file");

    ASSERT_EQ(::symlink("self.effect.json", folder.file("self.effect.json").c_str()), 0);
    EXPECT_EQ(problemOfFile(folder, "self.effect.json"), "Too many levels of symbolic links");

    // The largest that is read is of 16 MiB, all of them zero here, and takes no room on the disk.
    folder.write("large.effect.json", "");
    ASSERT_EQ(::truncate(folder.file("large.effect.json").c_str(), maxItemFileSize), 0);
    EXPECT_THAT(problemOfFile(folder, "large.effect.json"), HasSubstr("this is no JSON"));
    ASSERT_EQ(::truncate(folder.file("large.effect.json").c_str(), maxItemFileSize + 1), 0);
    EXPECT_EQ(problemOfFile(folder, "large.effect.json"), "is larger than 16 MiB");
}

TEST(ReadItem, NeedsPermission)
{
    constexpr uid_t nobody = 65534;
    ItemFolder const folder;
    folder.add("secret");
    ASSERT_EQ(::chmod(folder.nativePath().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(folder.file("secret.effect.json").c_str(), 0), 0);
    // Root may read everything.
    uid_t const user = ::geteuid();
    if (user == 0) {
        ASSERT_EQ(::seteuid(nobody), 0);
    }
    std::string const problem = problemOfFile(folder, "secret.effect.json");
    ASSERT_EQ(::seteuid(user), 0);
    EXPECT_EQ(problem, "Permission denied");
}

Sample::Effect effectWithResource(QString const & path)
{
    Sample::Effect effect;
    effect.tag = "stored";
    effect.level = 12;
    effect.resourcePath = path;
    return effect;
}

json readDocument(std::string const & path)
{
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return json::parse(file.readAll().toStdString());
}

TEST(StoreItem, WritesWhatReadItemReads)
{
    ItemFolder const root;
    QString const folder = root.path() + "/Effects/Sample";
    Sample::Effect const effect = effectWithResource(folder + "/warm.cube");
    storeItem(folder, QString::fromUtf8("Wärme"), effect, {"category_b", "category_a"});

    json const document = readDocument(root.file("Effects/Sample/Wärme.effect.json"));
    EXPECT_EQ(document["categories"], json({"category_a", "category_b"}));
    EXPECT_EQ(document["effect"]["Effect::Object"]["resourcePath"], "warm.cube");

    auto const item = readItem(folder.toStdString(), "Wärme.effect.json");
    EXPECT_EQ(item->payload().resourcePath, effect.resourcePath);
    EXPECT_EQ(item->payload().tag, "stored");
    EXPECT_EQ(dynamic_cast<Sample::Effect const &>(item->payload()).level, 12);
    EXPECT_THAT(item->categories(), ElementsAre("category_a", "category_b"));
}

TEST(StoreItem, LeavesOtherResourcePathsAlone)
{
    ItemFolder const folder;
    for (QString const & path : {QString(""), QString("/elsewhere/a.png"), folder.path() + "2/a.png",
             folder.path() + '/', folder.path() + "//a.png"}) {
        storeItem(folder.path(), "item", effectWithResource(path));
        EXPECT_EQ(readDocument(folder.file("item.effect.json"))["effect"]["Effect::Object"]["resourcePath"],
            path.toStdString());
    }
}

TEST(StoreItem, ReplacesAFileWhole)
{
    ItemFolder const folder;
    folder.write("item.effect.json", "an older and longer text " + std::string(10'000, 'x'));
    storeItem(folder.path(), "item", effectWithResource(""));
    EXPECT_EQ(readItem(folder.nativePath(), "item.effect.json")->payload().tag, "stored");
    EXPECT_THAT(QDir(folder.path()).entryList(QDir::Files), ElementsAre("item.effect.json"));
}

TEST(StoreItem, AFullDiskLeavesTheOldItem)
{
    ItemFolder const folder;
    storeItem(folder.path(), "item", effectWithResource("/old.cube"));
    std::string problem;
    try {
        Testing::FileSizeLimit const limit(1024);
        storeItem(folder.path(), "item", effectWithResource('/' + QString(2000, 'n')));
    } catch (std::runtime_error const & error) {
        problem = error.what();
    }
    EXPECT_EQ(problem, folder.file("item.effect.json: File too large"));
    EXPECT_EQ(readItem(folder.nativePath(), "item.effect.json")->payload().resourcePath, "/old.cube");
    EXPECT_THAT(QDir(folder.path()).entryList(QDir::Files), ElementsAre("item.effect.json"));
}

TEST(StoreItem, TellsPathAndReason)
{
    ItemFolder const folder;
    folder.write("file", "");
    auto const problem = [](QString const & place, QString const & name) -> std::string {
        try {
            storeItem(place, name, effectWithResource(""));
        } catch (std::runtime_error const & error) {
            return error.what();
        }
        return {};
    };
    EXPECT_EQ(problem(folder.path(), ""), folder.nativePath() + ": an item's file cannot be named ");
    EXPECT_THAT(problem(folder.path(), "../item"), HasSubstr(": an item's file cannot be named ../item"));
    EXPECT_THAT(problem(folder.path(), QString(1, QChar::Null)), HasSubstr(": an item's file cannot be named "));
    EXPECT_EQ(
        problem(folder.path() + "/file", "item"), folder.file("file/item.effect.json: the folder cannot be made"));
    ASSERT_EQ(::mkdir(folder.file("taken.effect.json").c_str(), 0700), 0);
    EXPECT_THAT(problem(folder.path(), "taken"), HasSubstr("taken.effect.json: "));
}

} // namespace
