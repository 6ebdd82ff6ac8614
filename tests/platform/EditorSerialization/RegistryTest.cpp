#include <EditorSerialization/Registry.h>

#include <algorithm>
#include <optional>

#include <support/LogCapture.h>

#include "Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::Not;

struct LeafCreator final : Serialize::BaseCreator
{
    Serialize::ISerializable * create() const override
    {
        ++made;
        return new Host::Leaf;
    }
    static inline int made = 0;
};

TEST(Registry, MakesClassesByNameWhileTheyAreRegistered)
{
    EXPECT_EQ(Serialize::Registry::create("Test::Leaf"), nullptr);
    {
        Serialize::Registrator const registrator("Test::Leaf", new LeafCreator);
        EXPECT_NE(dynamic_cast<Host::Leaf *>(Serialize::Registry::create("Test::Leaf").get()), nullptr);
        EXPECT_THAT(Serialize::Registry::names(), Contains("Test::Leaf"));
    }
    EXPECT_EQ(Serialize::Registry::create("Test::Leaf"), nullptr);
    EXPECT_THAT(Serialize::Registry::names(), Not(Contains("Test::Leaf")));
}

TEST(Registry, NamesAreSorted)
{
    auto const names = Serialize::Registry::names();
    EXPECT_TRUE(std::is_sorted(names.begin(), names.end()));
    EXPECT_THAT(names, Contains("Host::Leaf"));
}

TEST(Registry, AClassWithoutACreatorCannotBeMade)
{
    Serialize::Registrator const registrator("Test::Nothing", nullptr);
    EXPECT_EQ(Serialize::Registry::create("Test::Nothing"), nullptr);
}

TEST(Registry, ASecondRegistrationIsReportedAndDropped)
{
    static char const first[] = "Test::Twice";
    static char const second[] = "Test::Twice";
    std::optional<Serialize::Registrator> registrator(std::in_place, first, new LeafCreator);
    LogCapture const log;
    {
        Serialize::Registrator const again(second, nullptr);
        EXPECT_THAT(log.errors(), testing::ElementsAre(testing::HasSubstr("Test::Twice is registered twice")));
    }
    // The second one takes nothing back when it goes.
    EXPECT_NE(Serialize::Registry::create("Test::Twice"), nullptr);
    registrator.reset();
    EXPECT_EQ(Serialize::Registry::create("Test::Twice"), nullptr);
}

} // namespace
