#include "Effectctl.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using testing::StartsWith;
using Testing::TemporaryFolder;

constexpr char const * good = R"({"$meta": {"class": "Effect::Blur"}})";
constexpr char const * odd = R"({"$meta": {"class": "Effect::Blur"}, "intensity": 1})";
constexpr char const * bad = "{\"$meta\": {\"class\": \"Effect::Blur\"},\n \"Effect::VideoEffect\": 7}";

TEST(Check, TheStockHasNoFindings)
{
    auto const run = effectctl({"check", "--strict", STOCK_FOLDER});
    EXPECT_EQ(run.status, 0) << run.output;
    EXPECT_THAT(run.output, HasSubstr(" files: 0 errors, 0 warnings, 0 notes\n"));
    EXPECT_EQ(run.errors, "");
}

TEST(Check, AFolderWithNineMistakesHasNineFindings)
{
    TemporaryFolder const folder;
    // The tag is the name up to the first underscore.
    auto const item = [&folder](QString const & name, std::string const & className, std::string const & object,
                          std::string const & own = {}, std::string const & category = "category_blur") {
        std::string const tag = name.section('_', 0, 0).toStdString();
        folder.write("stock/VideoEffects/" + name + ".effect.json",
            R"({"categories": [")" + category + R"("], "effect": {"$meta": {"class": "Effect::)" + className +
                R"("}, "Effect::VideoEffect": {"Effect::Object": {"tag": ")" + tag + '"' + object + "}}" + own + "}}");
    };
    item("good", "Blur", "");
    item("another", "Blur", "");
    item("good_again", "Blur", "");
    item("key", "Blur", R"(, "intensitty": 0.5)");
    item("base", "TiltShift", R"(, "smns": 0.5)");
    item("bound", "ManualEnhance", "", R"(, "gamma": 1.5)");
    item("choice", "Mirror", "", R"(, "vertical": 7)");
    item("category", "Blur", "", "", "category_blurr");
    item("file", "Lut", R"(, "resource": {"name": "no.cube", "type": 4}, "resourcePath": "no.cube")");
    item("picture", "Overlay", R"(, "resource": {"name": "no.png", "type": 3}, "resourcePath": "no.png")");
    item("nothing", "ManualEnhance", "");

    auto const run = effectctl({"check", "--json", folder.path("stock")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "");
    json const files = json::parse(run.output);
    ASSERT_EQ(files.size(), 11U);
    std::map<std::string, std::string> codes;
    for (json const & file : files) {
        EXPECT_LE(file["findings"].size(), 1U);
        for (json const & finding : file["findings"])
            codes[QFileInfo(QString::fromStdString(file["file"])).baseName().toStdString()] = finding["code"];
    }
    EXPECT_EQ(codes, (std::map<std::string, std::string>{{"good_again", "duplicate-tag"}, {"key", "unknown-key"},
                         {"base", "misplaced-key"}, {"bound", "out-of-range"}, {"choice", "unknown-choice"},
                         {"category", "unknown-category"}, {"file", "missing-resource"},
                         {"picture", "missing-resource"}, {"nothing", "no-effect"}}));
    EXPECT_THAT(
        effectctl({"check", folder.path("stock")}).output, HasSubstr("\n11 files: 2 errors, 7 warnings, 0 notes\n"));
}

TEST(Check, EveryFileIsCheckedBehindABadOne)
{
    TemporaryFolder const folder;
    QString const broken = folder.write("bad.json", bad);
    QString const fine = folder.write("good.json", good);
    auto const run = effectctl({"check", folder.path("gone.json"), broken, fine, folder.path("*.none")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(
        run.output, (folder.path("gone.json") + ": error: No such file or directory\n" + broken +
                        ":2:2: error: an object is expected, found number, at /Effect::VideoEffect\n" +
                        folder.path("*.none") + ": error: no file matches\n4 files: 3 errors, 0 warnings, 0 notes\n")
                        .toStdString());
}

TEST(Check, WarningsAreErrorsWhereThatIsAskedFor)
{
    TemporaryFolder const folder;
    QString const file = folder.write("odd.json", odd);
    EXPECT_EQ(effectctl({"check", file}).status, 0);
    EXPECT_EQ(effectctl({"check", "--strict", file}).status, 1);
    EXPECT_THAT(
        effectctl({"check", file}).output, HasSubstr("odd.json:1:38: warning: the key \"intensity\" belongs to "));
}

TEST(Check, DocumentsAreAnArrayOrLines)
{
    TemporaryFolder const folder;
    QString const file = folder.write("odd.json", odd);
    json const array = json::parse(effectctl({"check", "--json", file}).output);
    ASSERT_EQ(array.size(), 1U);
    EXPECT_EQ(array[0]["file"], file.toStdString());
    EXPECT_EQ(array[0]["findings"][0]["code"], "misplaced-key");
    EXPECT_EQ(array[0]["findings"][0]["offset"], 37);
    auto const lines = effectctl({"check", "--jsonl", file, folder.path("gone.json"), "-"}, good);
    EXPECT_EQ(lines.status, 1);
    std::istringstream stream(lines.output);
    std::string first, second, third, rest;
    std::getline(stream, first);
    std::getline(stream, second);
    std::getline(stream, third);
    EXPECT_FALSE(std::getline(stream, rest)) << rest;
    EXPECT_EQ(json::parse(first), array[0]);
    EXPECT_EQ(json::parse(second)["findings"][0]["code"], "unreadable");
    EXPECT_EQ(json::parse(third), json({{"file", "-"}, {"findings", json::array()}}));
    EXPECT_EQ(effectctl({"check", "--json", "--jsonl", file}).status, 2);
    EXPECT_EQ(effectctl({"check"}).status, 2);
}

} // namespace
