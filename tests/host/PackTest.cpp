// effectctl pack and unpack

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
using Testing::shell;

struct PackCommand : testing::Test
{
    PackCommand()
    {
        folder.write("luts/warm.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
        EXPECT_EQ(effectctl({"new", "Effect::Lut", in("luts/warm.cube"), "-o", in("luts/warm.effect.json")}).status, 0);
    }

    QString in(char const * name) const { return QString::fromStdString(folder.path(name)); }

    Folder folder;
};

TEST_F(PackCommand, BringsPresetsAcross)
{
    auto const run = effectctl({"pack", in("looks.effects"), in("luts"), "--licence", "CC0-1.0", "--author",
        QString::fromUtf8("A. \xC3\x84uthor"), "--version", "2"});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_EQ(run.output, "warm.cube\nwarm.effect.json\n");
    // In any locale.
    auto const unpacked =
        shell(QString("LC_ALL=C $effectctl unpack --json '%1' '%2'").arg(in("looks.effects"), in("out")));
    EXPECT_EQ(unpacked.status, 0) << unpacked.errors;
    EXPECT_EQ(json::parse(unpacked.output),
        (json{{"pack", folder.path("looks.effects")}, {"files", {"pack.json", "warm.cube", "warm.effect.json"}}}));
    EXPECT_EQ(folder.read("out/warm.effect.json"), folder.read("luts/warm.effect.json"));
    json const list = json::parse(folder.read("out/pack.json"));
    EXPECT_EQ(list["author"], "A. \xC3\x84uthor");
    EXPECT_EQ(list["licence"], "CC0-1.0");
    auto const again = effectctl({"unpack", in("looks.effects"), in("out")});
    EXPECT_EQ(again.status, 1);
    EXPECT_EQ(again.errors,
        "effectctl: " + folder.path("looks.effects") + ": pack.json: is in " + folder.path("out") + " already\n");
}

TEST_F(PackCommand, LeavesAnOldPackAlone)
{
    folder.write("looks.effects", "old");
    folder.write("luts/bad.json", "{");
    auto const run = effectctl({"pack", in("looks.effects"), in("luts")});
    EXPECT_EQ(run.status, 1);
    EXPECT_THAT(run.errors, HasSubstr(folder.path("luts/bad.json") + ": this is no JSON"));
    EXPECT_EQ(folder.read("looks.effects"), "old");
}

TEST_F(PackCommand, RefusesBadPacksAndUsage)
{
    EXPECT_EQ(effectctl({"unpack", in("luts/warm.cube"), in("out")}).status, 1);
    EXPECT_EQ(effectctl({"unpack", in("gone.effects"), in("out")}).status, 1);
    EXPECT_EQ(effectctl({"pack", in("looks.effects")}).status, 2);
    EXPECT_EQ(effectctl({"pack", in("looks.effects"), in("luts"), "--licence", "free!"}).status, 2);
    EXPECT_THAT(folder.files(), ElementsAre("luts/warm.cube", "luts/warm.effect.json"));
}

} // namespace
