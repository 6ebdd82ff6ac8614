// effectctl search
#include <tests/support/Folder.h>

#include "Effectctl.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Testing::effectctl;
using Testing::Folder;
using Testing::Run;
using testing::StartsWith;

Run search(QStringList const & arguments)
{
    Folder const user;
    return effectctl(
        QStringList{"search", "--stock", STOCK_FOLDER, "--user", QString::fromStdString(user.path())} + arguments);
}

TEST(SearchCommand, PutsTheBestFirst)
{
    auto const run = search({"--json", "telephone", "old"});
    EXPECT_EQ(run.status, 0) << run.errors;
    json const found = json::parse(run.output);
    ASSERT_GE(found.size(), 1U);
    EXPECT_EQ(found[0]["tag"], "effect_phone_old_line");
    EXPECT_EQ(found[0]["class"], "Effect::AudioPhone");
    EXPECT_EQ(found[0]["file"], STOCK_FOLDER "/AudioEffects/audio_phone_old_line.effect.json");
    EXPECT_TRUE(found[0]["categories"].is_array());
    for (std::size_t index = 1; index < found.size(); ++index)
        EXPECT_LE(found[index]["score"], found[index - 1]["score"]);
    EXPECT_EQ(found[0].size(), 5U);
}

TEST(SearchCommand, ForgivesATypingMistake)
{
    auto const run = search({"moonligth"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_THAT(run.output, StartsWith("SCORE\tTAG\tCLASS\n4\teffect_lut_cold_moonlight\tEffect::Lut\n"));
}

TEST(SearchCommand, SaysWhenThereIsNothing)
{
    auto const run = search({"zebra", "crossing"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "effectctl: no item has to do with zebra crossing\n");
    EXPECT_EQ(search({"--json", "zebra"}).output, "[]\n");
    EXPECT_EQ(search({}).status, 2);
}

} // namespace
