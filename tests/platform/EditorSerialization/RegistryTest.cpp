#include <EditorSerialization/Registry.h>

#include <EditorSerialization/Layout.h>

#include <algorithm>
#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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

TEST(Registry, FindsNamesOfEveryLengthByWhatTheyDifferIn)
{
    std::deque<std::string> names; // outlive their registrators
    std::deque<Serialize::Registrator> registrators;
    std::vector<std::pair<std::string, Serialize::BaseCreator const *>> registered;
    for (std::size_t size = 1; size <= 40; ++size)
        for (std::size_t place : {std::size_t(0), size / 2, size - 1}) {
            std::string name(size, '.');
            name[place] = 'x';
            if (std::find(names.begin(), names.end(), name) != names.end())
                continue;
            names.push_back(name);
            auto const * const creator = new LeafCreator;
            registrators.emplace_back(names.back().c_str(), creator);
            registered.emplace_back(name, creator);
        }
    for (auto const & [name, creator] : registered)
        EXPECT_EQ(Serialize::Registry::find(name).creator, creator) << name;
    EXPECT_EQ(Serialize::Registry::find({}).creator, nullptr);
    EXPECT_EQ(Serialize::Registry::find(std::string(41, '.')).creator, nullptr);
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

TEST(Registry, KnowsTheLayoutWhileTheClassIsRegistered)
{
    static Serialize::Layout const layout{};
    static char const name[] = "Test::WithLayout";
    EXPECT_EQ(Serialize::Registry::find(name).layout, nullptr);
    {
        auto const * const creator = new LeafCreator;
        Serialize::Registrator const registrator(name, creator, &layout);
        Serialize::Registrator const dropped(name, new LeafCreator);
        EXPECT_EQ(Serialize::Registry::find(name).creator, creator);
        EXPECT_EQ(Serialize::Registry::find(name).layout, &layout);
    }
    EXPECT_EQ(Serialize::Registry::find(name).creator, nullptr);
    EXPECT_EQ(Serialize::Registry::find(name).layout, nullptr);
    Serialize::Registrator const other(name, new LeafCreator);
    EXPECT_EQ(Serialize::Registry::find(name).layout, nullptr);
    EXPECT_EQ(Serialize::Registry::find("Host::Leaf").layout, nullptr);
}

TEST(Registry, ASecondRegistrationIsReportedAndDropped)
{
    static char const name[] = "Test::Twice";
    static char const sameName[] = "Test::Twice";
    struct
    {
        char const * secondName;
        Serialize::BaseCreator const * firstCreator;
        Serialize::BaseCreator const * secondCreator;
    } const rows[] = {
        {sameName, new LeafCreator, nullptr},
        {sameName, new LeafCreator, new LeafCreator},
        // One literal in two registrators, as when a class is registered in two libraries that share it.
        {name, new LeafCreator, nullptr},
        {name, new LeafCreator, new LeafCreator},
        {name, nullptr, nullptr},
        {name, nullptr, new LeafCreator},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(&row - rows);
        bool const canBeMade = row.firstCreator != nullptr;
        std::optional<Serialize::Registrator> registrator(std::in_place, name, row.firstCreator);
        LogCapture const log;
        {
            Serialize::Registrator const again(row.secondName, row.secondCreator);
            EXPECT_THAT(log.errors(), testing::ElementsAre(testing::HasSubstr("Test::Twice is registered twice")));
            EXPECT_EQ(Serialize::Registry::create("Test::Twice") != nullptr, canBeMade);
        }
        // The second one takes nothing back when it goes.
        EXPECT_THAT(Serialize::Registry::names(), Contains("Test::Twice"));
        EXPECT_EQ(Serialize::Registry::create("Test::Twice") != nullptr, canBeMade);
        registrator.reset();
        EXPECT_THAT(Serialize::Registry::names(), Not(Contains("Test::Twice")));
    }
}

TEST(Registry, TheFirstRegistrationEndsWithItsRegistrator)
{
    static char const name[] = "Test::Outlived";
    std::optional<Serialize::Registrator> first(std::in_place, name, new LeafCreator);
    LogCapture const log;
    std::optional<Serialize::Registrator> second(std::in_place, name, new LeafCreator);
    first.reset();
    EXPECT_EQ(Serialize::Registry::create(name), nullptr);
    // The name is free again, and the dropped one does not take it back from its new owner either.
    Serialize::Registrator const third(name, new LeafCreator);
    second.reset();
    EXPECT_NE(Serialize::Registry::create(name), nullptr);
}

} // namespace
