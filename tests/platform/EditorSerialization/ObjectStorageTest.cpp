#include "Host.h"

#include <EditorSerialization/ObjectStorage.h>

#include <gtest/gtest.h>

namespace {

using namespace Serialize;

bool lives(ISerializable const * object)
{
    for (Host::Counted const * instance : Host::Counted::instances)
        if (instance == object)
            return true;
    return false;
}

TEST(ObjectStorage, DeletesWhatItOwns)
{
    ISerializable * leaf = nullptr;
    ISerializable * branch = nullptr;
    {
        ObjectStorage storage;
        EXPECT_EQ(storage.size(), 0U);
        auto given = std::make_unique<Host::Leaf>();
        auto const * const address = given.get();
        leaf = storage.add(std::move(given));
        EXPECT_EQ(leaf, address);
        branch = storage.add(std::make_unique<Host::Branch>());
        EXPECT_EQ(storage.size(), 2U);
        EXPECT_TRUE(lives(leaf));
        EXPECT_TRUE(lives(branch));
    }
    EXPECT_FALSE(lives(leaf));
    EXPECT_FALSE(lives(branch));
}

TEST(ObjectStorage, ReleaseAllGivesTheOwnershipUp)
{
    std::unique_ptr<ISerializable> kept;
    {
        ObjectStorage storage;
        kept.reset(storage.add(std::make_unique<Host::Leaf>()));
        storage.releaseAll();
        EXPECT_EQ(storage.size(), 0U);
    }
    EXPECT_TRUE(lives(kept.get()));
}

TEST(ObjectStorage, CanBeUsedAfterReleaseAll)
{
    ObjectStorage storage;
    std::unique_ptr<ISerializable> const kept(storage.add(std::make_unique<Host::Leaf>()));
    storage.releaseAll();
    storage.releaseAll();
    storage.add(std::make_unique<Host::Leaf>());
    EXPECT_EQ(storage.size(), 1U);
}

TEST(ObjectStorage, AnObjectKeepsWhatItOwns)
{
    auto node = std::make_unique<Host::Node>();
    node->children.push_back(std::make_unique<Host::Leaf>());
    node->children.emplace_back();
    node->children.push_back(Host::nested(3));
    auto branch = std::make_unique<Host::Branch>();
    branch->leaves.resize(2);
    node->children.push_back(std::move(branch));
    {
        ObjectStorage storage;
        storage.add(std::move(node));
        EXPECT_EQ(storage.size(), 1U);
    }
    // Deleted once each: twice would not get here under a sanitizer.
    EXPECT_TRUE(Host::Counted::instances.empty());
}

TEST(ObjectStorage, NullIsNothing)
{
    ObjectStorage storage;
    EXPECT_EQ(storage.add(nullptr), nullptr);
    EXPECT_EQ(storage.size(), 0U);
}

TEST(ObjectStorage, TheClassNeedNotBeRegistered)
{
    {
        ObjectStorage storage;
        EXPECT_NE(storage.add(std::make_unique<Host::Unknown>()), nullptr);
        EXPECT_EQ(storage.size(), 1U);
    }
    EXPECT_TRUE(Host::Counted::instances.empty());
}

TEST(ObjectStorage, MovingTakesTheObjectsAlong)
{
    ObjectStorage first;
    ISerializable const * const leaf = first.add(std::make_unique<Host::Leaf>());
    ObjectStorage second(std::move(first));
    EXPECT_EQ(second.size(), 1U);
    EXPECT_EQ(first.size(), 0U);
    first.releaseAll();
    EXPECT_TRUE(lives(leaf));

    // A storage that was moved from can be filled again.
    first.add(std::make_unique<Host::Branch>());
    EXPECT_EQ(first.size(), 1U);

    ObjectStorage third;
    third = std::move(second);
    EXPECT_EQ(third.size(), 1U);
    EXPECT_TRUE(lives(leaf));
}

TEST(SerializePtr, OwnsThroughItsStorageOrItsPointer)
{
    serialize_ptr<ISerializable> const empty;
    EXPECT_FALSE(empty);

    {
        // As a reader hands it out: the pointer is taken over once the storage has let go.
        serialize_ptr<ISerializable> read;
        ISerializable * const leaf = read.storage.add(std::make_unique<Host::Leaf>());
        read.storage.releaseAll();
        read.pointer.reset(leaf);
        EXPECT_TRUE(read);
        EXPECT_EQ(read->GetNameInArchive(), "Host::Leaf");
        EXPECT_EQ(&*read, leaf);
    }
    EXPECT_TRUE(Host::Counted::instances.empty());
}

} // namespace
