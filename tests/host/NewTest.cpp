// effectctl new
#include <tests/support/Folder.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using testing::ElementsAre;
using Testing::Folder;
using testing::HasSubstr;

TEST(New, WritesAnItemThatConverts)
{
    Folder const folder;
    QString const table = QString::fromStdString(folder.write("warm.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n"));
    QString const file = QString::fromStdString(folder.path("warm.effect.json"));
    auto const run = effectctl({"new", "Effect::Lut", table, "-o", file, "--category", "category_b", "--category",
        "category_a", "--set", "intensity=0.5"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "");
    json const item = json::parse(folder.read("warm.effect.json"));
    EXPECT_EQ(item["categories"], json({"category_a", "category_b"}));
    EXPECT_EQ(item["effect"]["Effect::VideoEffect"]["Effect::Object"]["intensity"], 0.5);
    EXPECT_EQ(effectctl({"convert", file}).status, 0);
    // The same on standard output, with a whole path.
    EXPECT_THAT(effectctl({"new", "Effect::Lut", table, "-o", "-"}).output,
        HasSubstr("\"resourcePath\": \"" + table.toStdString() + '"'));
}

TEST(New, SaysWhatIsWrong)
{
    Folder const folder;
    QString const file = QString::fromStdString(folder.path("a.effect.json"));
    EXPECT_EQ(effectctl({"new", "Effect::Lut", "-o", file}).errors,
        "effectctl: Effect::Lut needs a lookup table: name its file behind the class\n");
    EXPECT_EQ(effectctl({"new", "Effect::Croq", "-o", file}).errors,
        "effectctl: there is no class \"Effect::Croq\"; did you mean \"Effect::Crop\"?\n");
    EXPECT_EQ(effectctl({"new", "Effect::Crop", "-o", file, "--set", "nosign"}).status, 2);
    EXPECT_EQ(effectctl({"new", "Effect::Crop"}).status, 2);
    EXPECT_THAT(folder.files(), ElementsAre());
}

} // namespace
