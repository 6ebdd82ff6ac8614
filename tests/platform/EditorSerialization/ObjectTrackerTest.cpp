#include <array>
#include <stdexcept>
#include <string>

#include "Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Serialize;
using Kind = ObjectTracker::Kind;
using testing::HasSubstr;
using testing::Pair;
using testing::UnorderedElementsAre;

/// Walks the object through a pointer.
void point(ObjectTracker & tracker, ISerializable const * object)
{
    tracker << object;
}

template <class Walk> std::string errorOf(Walk const & walk)
{
    try {
        walk();
    } catch (std::runtime_error const & error) {
        return error.what();
    } catch (std::exception const & error) {
        return std::string("no runtime error: ") + error.what();
    }
    return "no error";
}

constexpr char const * byReferenceTwice = "Object adressed by reference was already serialized by reference";
constexpr char const * byPointerBefore = "Object adressed by reference was already serialized by pointer";
constexpr char const * onHeap = "Reference to object on heap is not allowed";

/// The entry of an object that must have one.
ObjectTracker::Entry const & entry(ObjectTracker const & tracker, ISerializable const & object)
{
    return tracker.entries().at(&object);
}

TEST(ObjectTracker, NumbersOfTheKinds)
{
    EXPECT_EQ(static_cast<int>(Kind::Unknown), 0);
    EXPECT_EQ(static_cast<int>(Kind::Reference), 1);
    EXPECT_EQ(static_cast<int>(Kind::OwnedPointer), 2);
    EXPECT_EQ(static_cast<int>(Kind::Pointer), 3);
}

TEST(ObjectTracker, APointerIsOwnedUnlessTheFlagIsSet)
{
    Host::Leaf const owned;
    Host::Leaf const foreign;
    ObjectTracker tracker;
    EXPECT_FALSE(tracker.isForeign());
    point(tracker, &owned);
    tracker.setForeign(true);
    EXPECT_TRUE(tracker.isForeign());
    point(tracker, &foreign);

    EXPECT_EQ(entry(tracker, owned).kind, Kind::OwnedPointer);
    EXPECT_TRUE(entry(tracker, owned).saved);
    EXPECT_TRUE(entry(tracker, owned).release);
    EXPECT_EQ(entry(tracker, foreign).kind, Kind::Pointer);
    EXPECT_TRUE(entry(tracker, foreign).saved);
    EXPECT_FALSE(entry(tracker, foreign).release);
}

TEST(ObjectTracker, ADeclaredPointerIsTheSameAsOneToTheBase)
{
    Host::Leaf const leaf;
    Host::Leaf const * const declared = &leaf;
    ObjectTracker tracker;
    tracker << declared;
    point(tracker, declared);
    EXPECT_EQ(tracker.entries().size(), 1U);
}

TEST(ObjectTracker, TheReleaseFunctionDeletesTheWholeObject)
{
    auto * const leaf = new Host::Leaf;
    ObjectTracker tracker;
    point(tracker, leaf);
    ASSERT_EQ(Host::Counted::instances.count(leaf), 1U);
    tracker.releaseAll();
    EXPECT_EQ(Host::Counted::instances.count(leaf), 0U);
    EXPECT_TRUE(tracker.entries().empty());
}

/// A node that holds a leaf and a node with a leaf of its own.
std::unique_ptr<Host::Node> holderOfHolders()
{
    auto inner = std::make_unique<Host::Node>();
    inner->children.push_back(std::make_unique<Host::Leaf>());
    auto outer = std::make_unique<Host::Node>();
    outer->children.push_back(std::make_unique<Host::Leaf>());
    outer->children.emplace_back();
    outer->children.push_back(std::move(inner));
    return outer;
}

TEST(ObjectTracker, WhatAnObjectHoldsIsReleasedWithItsHolder)
{
    auto * const outer = holderOfHolders().release();
    ObjectTracker tracker;
    point(tracker, outer);
    EXPECT_FALSE(entry(tracker, *outer).held);
    for (std::size_t const index : {0, 2}) {
        EXPECT_TRUE(entry(tracker, *outer->children[index]).held);
        EXPECT_TRUE(entry(tracker, *outer->children[index]).release);
    }
    ASSERT_EQ(Host::Counted::instances.size(), 4U);
    tracker.releaseAll();
    EXPECT_TRUE(Host::Counted::instances.empty());
}

TEST(ObjectTracker, WhatAnObjectHoldsStaysWithAHolderThatIsNotReleased)
{
    struct
    {
        char const * how;
        void (*reach)(ObjectTracker &, Host::Node const &);
    } const rows[] = {
        {"by reference", [](ObjectTracker & tracker, Host::Node const & node) { tracker << node; }},
        {"forced to be foreign",
            [](ObjectTracker & tracker, Host::Node const & node) {
                tracker.forceForeign(&node);
                point(tracker, &node);
            }},
        {"what is held before its holder",
            [](ObjectTracker & tracker, Host::Node const & node) {
                point(tracker, node.children[0].get());
                tracker << node;
            }},
        {"part of it before the depth limit",
            [](ObjectTracker & tracker, Host::Node const & node) {
                auto & inner = dynamic_cast<Host::Node &>(*node.children[2]);
                inner.children.push_back(Host::nested(maxObjectDepth));
                EXPECT_THROW(tracker << node, ArchiveError);
            }},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.how);
        auto const node = holderOfHolders();
        ObjectTracker tracker;
        row.reach(tracker, *node);
        std::size_t const alive = Host::Counted::instances.size();
        tracker.releaseAll();
        EXPECT_EQ(Host::Counted::instances.size(), alive);
    }
}

TEST(ObjectTracker, AnOwningPointerOutsideOfAnyObjectHoldsNothing)
{
    auto leaf = std::make_unique<Host::Leaf>();
    ObjectTracker tracker;
    tracker << leaf;
    EXPECT_FALSE(entry(tracker, *leaf).held);
    leaf.release();
    tracker.releaseAll();
    EXPECT_TRUE(Host::Counted::instances.empty());
}

TEST(ObjectTracker, ReleasesNothingByItself)
{
    auto const leaf = std::make_unique<Host::Leaf>();
    {
        ObjectTracker tracker;
        point(tracker, leaf.get());
        tracker.clear();
        point(tracker, leaf.get());
    }
    EXPECT_EQ(Host::Counted::instances.count(leaf.get()), 1U);
}

TEST(ObjectTracker, AForcedPointerGetsNoReleaseFunction)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    tracker.forceForeign(&leaf);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Pointer);
    EXPECT_FALSE(entry(tracker, leaf).saved);
    point(tracker, &leaf);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Pointer);
    EXPECT_TRUE(entry(tracker, leaf).saved);
    EXPECT_FALSE(entry(tracker, leaf).release);
}

TEST(ObjectTracker, ForcingTakesAReleaseFunctionAway)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    point(tracker, &leaf);
    tracker.forceForeign(&leaf);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Pointer);
    EXPECT_FALSE(entry(tracker, leaf).release);
}

TEST(ObjectTracker, WhatIsFoundFirstStays)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    tracker.setForeign(true);
    point(tracker, &leaf);
    tracker.setForeign(false);
    point(tracker, &leaf);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Pointer);
    EXPECT_FALSE(entry(tracker, leaf).release);
}

TEST(ObjectTracker, ANullPointerMakesNoEntry)
{
    Host::Node node;
    node.children.emplace_back();
    Host::Leaf const * const none = nullptr;
    ObjectTracker tracker;
    point(tracker, nullptr);
    tracker << none;
    EXPECT_TRUE(tracker.entries().empty());
    point(tracker, &node);
    EXPECT_EQ(tracker.entries().count(nullptr), 0U);
}

TEST(ObjectTracker, APointerTwiceIsAllowed)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    point(tracker, &leaf);
    EXPECT_NO_THROW(point(tracker, &leaf));
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::OwnedPointer);
}

TEST(ObjectTracker, AReferenceThenAPointerIsAllowed)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    tracker << leaf;
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Reference);
    EXPECT_TRUE(entry(tracker, leaf).saved);
    EXPECT_NO_THROW(point(tracker, &leaf));
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Reference);
    EXPECT_TRUE(entry(tracker, leaf).saved);
    EXPECT_FALSE(entry(tracker, leaf).release);
}

TEST(ObjectTracker, AReferenceTwiceIsRefused)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    tracker << leaf;
    EXPECT_EQ(errorOf([&] { tracker << leaf; }), byReferenceTwice);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Reference);
    EXPECT_TRUE(entry(tracker, leaf).saved);
    // A pointer between the two makes no difference.
    point(tracker, &leaf);
    EXPECT_EQ(errorOf([&] { tracker << leaf; }), byReferenceTwice);
}

TEST(ObjectTracker, APointerThenAReferenceIsRefused)
{
    Host::Leaf const owned;
    Host::Leaf const foreign;
    ObjectTracker tracker;
    point(tracker, &owned);
    EXPECT_EQ(errorOf([&] { tracker << owned; }), byPointerBefore);
    EXPECT_EQ(entry(tracker, owned).kind, Kind::OwnedPointer);
    EXPECT_TRUE(entry(tracker, owned).release);

    tracker.setForeign(true);
    point(tracker, &foreign);
    EXPECT_EQ(errorOf([&] { tracker << foreign; }), byPointerBefore);
    EXPECT_EQ(entry(tracker, foreign).kind, Kind::Pointer);
}

TEST(ObjectTracker, AnEntryThatIsNotSavedStandsInNobodysWay)
{
    Host::Leaf const leaf;
    ObjectTracker tracker;
    tracker.forceForeign(&leaf);
    EXPECT_NO_THROW(tracker << leaf);
    EXPECT_EQ(entry(tracker, leaf).kind, Kind::Pointer);
    EXPECT_EQ(errorOf([&] { tracker << leaf; }), byPointerBefore);
}

TEST(ObjectTracker, ElementsAreReachedByReferenceInOrder)
{
    Host::Branch branch;
    branch.leaves.resize(3);
    ObjectTracker tracker;
    // The second element has been reached: the first is walked before that turns out, the third is not.
    point(tracker, &branch.leaves[1]);
    EXPECT_EQ(errorOf([&] { point(tracker, &branch); }), byPointerBefore);
    EXPECT_EQ(entry(tracker, branch.leaves[0]).kind, Kind::Reference);
    EXPECT_TRUE(entry(tracker, branch.leaves[0]).saved);
    EXPECT_EQ(entry(tracker, branch.leaves[1]).kind, Kind::OwnedPointer);
    EXPECT_EQ(tracker.entries().count(&branch.leaves[2]), 0U);
    // The one that the error came out of has its entry, and counts as not saved.
    EXPECT_EQ(entry(tracker, branch).kind, Kind::OwnedPointer);
    EXPECT_FALSE(entry(tracker, branch).saved);
    EXPECT_TRUE(entry(tracker, branch).release);
}

TEST(ObjectTracker, OwnedObjectsAreReachedByPointer)
{
    Host::Node node;
    node.children.push_back(std::make_unique<Host::Leaf>());
    node.children.emplace_back();
    node.children.push_back(std::make_unique<Host::Node>());
    ObjectTracker tracker;
    tracker << node;
    EXPECT_EQ(entry(tracker, node).kind, Kind::Reference);
    EXPECT_EQ(entry(tracker, *node.children[0]).kind, Kind::OwnedPointer);
    EXPECT_EQ(entry(tracker, *node.children[2]).kind, Kind::OwnedPointer);
}

TEST(ObjectTracker, AnUnregisteredClassIsRefusedAndItsEntryStays)
{
    Host::Unknown const unknown;
    ObjectTracker tracker;
    try {
        point(tracker, &unknown);
        FAIL() << "was taken";
    } catch (boost::archive::archive_exception const & error) {
        EXPECT_EQ(error.code, boost::archive::archive_exception::unregistered_class);
        EXPECT_THAT(error.what(), HasSubstr("derived class not registered or exported"));
    }
    EXPECT_EQ(entry(tracker, unknown).kind, Kind::OwnedPointer);
    EXPECT_FALSE(entry(tracker, unknown).saved);
}

TEST(ObjectTracker, OwnTakesOverWhateverWasThere)
{
    auto * const leaf = new Host::Leaf;
    ObjectTracker tracker;
    tracker.forceForeign(leaf);
    tracker.own(leaf);
    EXPECT_EQ(entry(tracker, *leaf).kind, Kind::OwnedPointer);
    EXPECT_TRUE(entry(tracker, *leaf).saved);
    tracker.releaseAll();
    EXPECT_EQ(Host::Counted::instances.count(leaf), 0U);
}

TEST(ObjectTracker, NestingHasALimit)
{
    auto const deepest = Host::nested(maxObjectDepth);
    ObjectTracker tracker;
    EXPECT_NO_THROW(point(tracker, deepest.get()));

    auto const tooDeep = Host::nested(maxObjectDepth + 1);
    try {
        point(tracker, tooDeep.get());
        FAIL() << "was taken";
    } catch (ArchiveError const & error) {
        EXPECT_STREQ(error.what(), "objects are nested more than 64 deep");
    }
    EXPECT_FALSE(entry(tracker, *tooDeep).saved);
    // The depth is back where it was.
    auto const another = Host::nested(maxObjectDepth);
    EXPECT_NO_THROW(point(tracker, another.get()));
}

// Counts of a walk are on the stack. To meet them, every place where one could be is said to hold an object.

/// As small as an object can be, so that every aligned place has one.
struct Speck : ISerializable
{
    std::string GetNameInArchive() const override { return ""; }
    void Serialize(ISerializer &) const override {}
    void Deserialize(IDeserializer &) override {}
};
static_assert(sizeof(Speck) == alignof(std::size_t));

/// Fills the stack below its caller with objects, has the tracker own them, and leaves.
[[gnu::noinline]] void coverTheStack(ObjectTracker & tracker)
{
    std::array<Speck, 8192> specks;
    for (Speck const & speck : specks)
        tracker.own(&speck);
}

/// Walks some way down the stack: below whatever the filling had to leave free.
[[gnu::noinline]] std::string walkBelow(ObjectTracker & tracker, ISerializable const & object)
{
    char volatile room[1024];
    room[0] = 0;
    std::string const error = errorOf([&] { point(tracker, &object); });
    room[sizeof room - 1] = room[0]; // the room is needed to the end
    return error;
}

TEST(ObjectTracker, ACountWhereAnObjectOnTheHeapIsSaidToBeIsRefused)
{
    Host::Branch const empty;
    {
        ObjectTracker tracker;
        EXPECT_EQ(walkBelow(tracker, empty), "no error");
    }
    ObjectTracker tracker;
    coverTheStack(tracker);
    EXPECT_EQ(walkBelow(tracker, empty), onHeap);
    EXPECT_FALSE(entry(tracker, empty).saved);
}

TEST(ObjectTracker, ACountWhereAnObjectOfSomebodyElseIsSaidToBeIsAllowed)
{
    Host::Branch const empty;
    ObjectTracker tracker;
    coverTheStack(tracker);
    auto const covered = tracker.entries();
    for (auto const & [address, known] : covered)
        tracker.forceForeign(address);
    EXPECT_EQ(walkBelow(tracker, empty), "no error");
}

} // namespace
