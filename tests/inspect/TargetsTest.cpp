#include <inspect/Targets.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using testing::ElementsAre;
using Testing::Folder;

std::vector<std::string> placesOf(std::vector<std::string> const & arguments)
{
    std::vector<std::string> places;
    for (Target const & target : targets(arguments, {".json"}))
        places.push_back(target.error.empty() ? target.relative : target.error);
    return places;
}

TEST(Targets, FilesKeepTheirPlacesBelowWhatWasNamed)
{
    Folder const folder;
    folder.write("one/a.json", "");
    folder.write("one/deep/b.json", "");
    folder.write("one/c.txt", "");
    folder.write("two/d.json", "");
    EXPECT_THAT(placesOf({folder.path("one")}), ElementsAre("a.json", "deep/b.json"));
    EXPECT_THAT(placesOf({folder.path("one/")}), ElementsAre("a.json", "deep/b.json"));
    EXPECT_THAT(placesOf({folder.path("one/deep/b.json")}), ElementsAre("b.json"));
    EXPECT_THAT(placesOf({folder.path("one/c.txt")}), ElementsAre("c.txt"));
    EXPECT_THAT(placesOf({folder.path("*")}), ElementsAre("one/a.json", "one/deep/b.json", "two/d.json"));
    EXPECT_THAT(placesOf({folder.path("o*/deep")}), ElementsAre("one/deep/b.json"));
}

TEST(Targets, WhatHasNoPlaceSaysWhy)
{
    Folder const folder;
    folder.write("none/a.txt", "");
    EXPECT_THAT(placesOf({"-", folder.path("none"), folder.path("x*")}),
        ElementsAre("-: standard input has no name under which it could be written",
            folder.path("none") + ": no file in this folder ends in .json", folder.path("x*") + ": no file matches"));
}

TEST(Targets, OnePlaceTakesOneFile)
{
    std::vector<Target> files{{"one/a.json", "a.json", ""}, {"bad", "", "bad: gone"}, {"two/a.json", "a.json", ""},
        {"two/b.json", "b.json", ""}};
    refuseCollisions(files);
    EXPECT_EQ(files[0].error, "");
    EXPECT_EQ(files[1].error, "bad: gone");
    EXPECT_EQ(files[2].error, "two/a.json: would be written to the same file as one/a.json: a.json");
    EXPECT_EQ(files[2].relative, "");
    EXPECT_EQ(files[3].relative, "b.json");
}

} // namespace
