// Commands that compare and change files: diff, patch, edit.
#include "Effectctl.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::HasSubstr;
using Testing::TemporaryFolder;

constexpr char const * plain = R"({"$meta": {"class": "Effect::ManualEnhance"}, "gamma": 0.5, "future": 1})";
constexpr char const * other = R"({"$meta": {"class": "Effect::ManualEnhance"}, "gamma": 0.25, "future": 1})";

TEST(Diff, ItsStatusesAreThoseOfDiff)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    QString const b = folder.write("b.json", other);
    auto const same = effectctl({"diff", a, a});
    EXPECT_EQ(same.status, 0);
    EXPECT_EQ(same.output, "");
    auto const different = effectctl({"diff", a, b});
    EXPECT_EQ(different.status, 1);
    EXPECT_EQ(different.output, "KEY\tPARAMETER\tA\tB\ngamma\tGamma\t0.5\t0.25\n");
    EXPECT_EQ(different.errors, "");
    auto const trouble = effectctl({"diff", a, folder.path("gone.json")});
    EXPECT_EQ(trouble.status, 2);
    EXPECT_EQ(trouble.output, "");
    EXPECT_EQ(trouble.errors, "effectctl: " + folder.path("gone.json").toStdString() + ": No such file or directory\n");
    EXPECT_EQ(effectctl({"diff", "-", a}, plain).status, 0);
}

TEST(Diff, APatchIsAppliedByPatch)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    QString const b = folder.write("b.json", other);
    auto const diff = effectctl({"diff", "--json", a, b});
    EXPECT_EQ(diff.status, 1);
    EXPECT_EQ(json::parse(diff.output), json::parse(R"([{"op": "replace", "path": "/gamma", "value": 0.25}])"));
    QString const patch = folder.write("patch.json", diff.output);
    EXPECT_EQ(effectctl({"patch", a, patch, "-o", folder.path("c.json")}).status, 0);
    EXPECT_EQ(json::parse(folder.read("c.json")), json::parse(other));
    EXPECT_EQ(folder.read("a.json"), plain);
    EXPECT_EQ(effectctl({"patch", a, "-"}, QByteArray::fromStdString(diff.output)).status, 0);
    EXPECT_EQ(json::parse(folder.read("a.json")), json::parse(other));
    EXPECT_EQ(effectctl({"diff", "--json", a, b}).output, "[]\n");
}

TEST(Patch, WhatDoesNotFitLeavesTheFile)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    auto const run = effectctl({"patch", a, folder.write("p.json", R"([{"op": "remove", "path": "/nowhere"}])")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(a.toStdString() + ": operation 0 of the patch: "));
    auto const broken = effectctl({"patch", a, folder.write("q.json", "[")});
    EXPECT_EQ(broken.status, 1);
    EXPECT_THAT(broken.errors, HasSubstr("q.json: "));
    EXPECT_EQ(folder.read("a.json"), plain);
}

TEST(Edit, FilesAreChangedInPlaceAndKeepTheRest)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    QString const b = folder.write("b.json", R"({"$meta": {"class": "Effect::Crop"}})");
    auto const run = effectctl({"edit", a, folder.path("gone.json"), b, "--set", "gamma=0.125", "--json"});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr("gone.json: No such file or directory\n"));
    EXPECT_THAT(run.errors, HasSubstr("b.json: Effect::Crop has no field \"gamma\""));
    EXPECT_EQ(json::parse(folder.read("a.json")),
        json::parse(R"({"$meta": {"class": "Effect::ManualEnhance"}, "gamma": 0.125, "future": 1})"));
    json const files = json::parse(run.output);
    ASSERT_EQ(files.size(), 3U);
    EXPECT_EQ(files[0]["changed"], true);
    EXPECT_TRUE(files[2].contains("error"));
}

TEST(Edit, WhatChangesNothingLeavesTheFileAlone)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    EXPECT_THAT(effectctl({"edit", a, "--set", "gamma=0.5", "--jsonl"}).output, HasSubstr("\"changed\":false"));
    EXPECT_EQ(folder.read("a.json"), plain);
}

TEST(Edit, ItWritesElsewhereAndThroughPipes)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    EXPECT_EQ(effectctl({"edit", a, "--unset", "gamma", "--unset", "future", "-o", folder.path("b.json")}).status, 0);
    EXPECT_EQ(json::parse(folder.read("b.json")), json::parse(R"({"$meta": {"class": "Effect::ManualEnhance"}})"));
    EXPECT_EQ(folder.read("a.json"), plain);
    auto const piped = effectctl({"edit", "-", "--set", "gamma=0.5"}, plain);
    EXPECT_EQ(piped.output, plain) << piped.errors;
}

TEST(Edit, WrongUsageChangesNothing)
{
    TemporaryFolder const folder;
    QString const a = folder.write("a.json", plain);
    EXPECT_EQ(effectctl({"edit", a}).status, 2);
    EXPECT_EQ(effectctl({"edit", "--set", "a=1"}).status, 2);
    EXPECT_EQ(effectctl({"edit", a, a, "--set", "gamma=1", "-o", folder.path("b.json")}).status, 2);
    EXPECT_EQ(folder.read("a.json"), plain);
}

} // namespace
