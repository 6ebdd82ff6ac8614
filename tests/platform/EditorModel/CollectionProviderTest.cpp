#include <EditorModel/CollectionProvider.h>

#include <stdexcept>

#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;

TEST(CollectionProvider, HasNoStorageOfItsOwn)
{
    EXPECT_THROW(CollectionProvider::itemStorage(), std::logic_error);
    EXPECT_EQ(CollectionProvider::findItemStorage(), nullptr);
}

TEST(CollectionProvider, HasTheStorageThatTheHostSet)
{
    NullItemStorage storage;
    CollectionProvider::setItemStorage(&storage);
    EXPECT_EQ(&CollectionProvider::itemStorage(), &storage);
    EXPECT_EQ(CollectionProvider::findItemStorage(), &storage);
    CollectionProvider::setItemStorage(nullptr);
    EXPECT_THROW(CollectionProvider::itemStorage(), std::logic_error);
}

TEST(CollectionProvider, KnowsNoCollectionThatNobodyRegistered)
{
    EXPECT_EQ(CollectionProvider::collection("Effects"), nullptr);
    EXPECT_TRUE(CollectionProvider::collections().empty());
}

TEST(NullItemStorage, DeliversNothing)
{
    NullItemStorage storage;
    storage.loadItems("/", "Samples", [](serialize_ptr<IItem> &&) { ADD_FAILURE(); });
}

} // namespace
