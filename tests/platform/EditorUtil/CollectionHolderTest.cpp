#include <EditorUtil/CollectionHolder.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <EditorModel/CollectionProvider.h>
#include <EditorUtil/Item.h>

#include "../EditorModel/TestEffect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;
using testing::ElementsAre;
using testing::IsEmpty;

std::unique_ptr<IItem> itemWithTag(QString const & tag)
{
    auto effect = std::make_unique<Sample::Effect>();
    effect->tag = tag;
    auto made = makeItem(std::move(effect));
    made.storage.releaseAll();
    return std::move(made.pointer);
}

TEST(CollectionHolder, MakesItsCollectionsKnownWhileItLives)
{
    ASSERT_THAT(CollectionProvider::collections(), IsEmpty());
    {
        CollectionHolder holder;
        EXPECT_EQ(holder.collection("A"), nullptr);
        holder.registerCollection("A");
        holder.registerCollection("B");
        ASSERT_NE(holder.collection("A"), nullptr);
        EXPECT_EQ(holder.collection("A")->name(), "A");
        EXPECT_EQ(CollectionProvider::collection("A"), holder.collection("A"));
        EXPECT_THAT(CollectionProvider::collections(), ElementsAre(holder.collection("A"), holder.collection("B")));
        EXPECT_EQ(CollectionProvider::collection("C"), nullptr);
    }
    EXPECT_EQ(CollectionProvider::collection("A"), nullptr);
}

TEST(CollectionHolder, RegistersANameOnce)
{
    CollectionHolder holder;
    holder.registerCollection("A");
    ICollection * const first = holder.collection("A");
    holder.registerCollection("A");
    EXPECT_EQ(holder.collection("A"), first);
    EXPECT_EQ(CollectionProvider::collections().size(), 1U);
}

TEST(CollectionHolder, TheLaterOfTwoIsFoundAsLongAsItLives)
{
    CollectionHolder first;
    first.registerCollection("A");
    {
        CollectionHolder second;
        second.registerCollection("A");
        EXPECT_EQ(CollectionProvider::collection("A"), second.collection("A"));
        EXPECT_EQ(first.collection("A")->name(), "A");
    }
    EXPECT_EQ(CollectionProvider::collection("A"), first.collection("A"));
}

/// The process's storage while it lives. It keeps the callbacks and delivers when the test asks for it.
class KeepingStorage final : public IItemStorage
{
public:
    KeepingStorage() { CollectionProvider::setItemStorage(this); }
    ~KeepingStorage() override { CollectionProvider::setItemStorage(nullptr); }

    std::vector<ItemCallback> callbacks;

    void loadItems(QString const &, QString const &, ItemCallback callback) override
    {
        callbacks.push_back(std::move(callback));
    }
    void deliverToAll() const
    {
        for (ItemCallback const & callback : callbacks)
            callback(makeItem(std::make_unique<Sample::Effect>()));
    }
};

TEST(CollectionHolder, NeedsAStorageForItsLoads)
{
    CollectionHolder holder;
    EXPECT_THROW(holder.loadItems("/folder", "A", [](serialize_ptr<IItem> &&) {}), std::logic_error);
}

TEST(CollectionHolder, ItsCollectionsAreThereUntilItsLoadsAreDropped)
{
    KeepingStorage const storage;
    auto holder = std::make_unique<CollectionHolder>();
    holder->registerCollection("A");
    // What a callback holds goes when its load is dropped.
    bool isDropped = false;
    std::shared_ptr<void> held(nullptr, [&](void *) {
        isDropped = true;
        EXPECT_NE(CollectionProvider::collection("A"), nullptr);
    });
    holder->loadItems("/folder", "A", [held = std::move(held)](serialize_ptr<IItem> &&) {});
    EXPECT_FALSE(isDropped);
    holder.reset();
    EXPECT_TRUE(isDropped);
    EXPECT_EQ(CollectionProvider::collection("A"), nullptr);
}

TEST(CollectionHolder, DropsItsOwnLoadsOnly)
{
    KeepingStorage const storage;
    std::vector<std::string> delivered;
    CollectionHolder first;
    first.registerCollection("A");
    first.loadItems("/folder", "A", [&](serialize_ptr<IItem> &&) { delivered.emplace_back("first"); });
    {
        CollectionHolder second;
        second.registerCollection("A");
        second.loadItems("/folder", "A", [&](serialize_ptr<IItem> &&) { delivered.emplace_back("second"); });
        // The name of the collection makes no difference, nor who else has one of that name.
        first.loadItems("/folder", "A", [&](serialize_ptr<IItem> &&) { delivered.emplace_back("first again"); });
        CollectionProvider::itemStorage().loadItems(
            "/folder", "A", [&](serialize_ptr<IItem> &&) { delivered.emplace_back("unowned"); });
        storage.deliverToAll();
        EXPECT_THAT(delivered, ElementsAre("first", "second", "first again", "unowned"));
        delivered.clear();
    }
    storage.deliverToAll();
    EXPECT_THAT(delivered, ElementsAre("first", "first again", "unowned"));
}

TEST(CollectionHolder, DropsItsLoadsOnTheStorageThatItUsed)
{
    KeepingStorage const used;
    std::size_t delivered = 0;
    auto holder = std::make_unique<CollectionHolder>();
    holder->loadItems("/folder", "A", [&](serialize_ptr<IItem> &&) { ++delivered; });
    {
        KeepingStorage const other; // and none at all when it goes
        EXPECT_EQ(&CollectionProvider::itemStorage(), &other);
    }
    holder.reset();
    used.deliverToAll();
    EXPECT_EQ(delivered, 0U);
}

class CollectionTest : public testing::Test
{
protected:
    CollectionTest() { m_holder.registerCollection("Samples"); }
    ICollection & collection() { return *m_holder.collection("Samples"); }

private:
    CollectionHolder m_holder;
};

TEST_F(CollectionTest, TakesItemsOver)
{
    auto item = itemWithTag("a");
    IItem const * const address = item.get();
    collection().addItem(std::move(item));
    EXPECT_EQ(item, nullptr);
    EXPECT_THAT(collection().items(), ElementsAre(address));
}

TEST_F(CollectionTest, LeavesNullWithTheCaller)
{
    collection().addItem(nullptr);
    EXPECT_THAT(collection().items(), IsEmpty());
}

TEST_F(CollectionTest, FindsTheFirstItemWithATag)
{
    EXPECT_EQ(collection().itemByTag("a"), nullptr);
    auto first = itemWithTag("a");
    IItem const * const address = first.get();
    collection().addItem(std::move(first));
    collection().addItem(itemWithTag("a"));
    collection().addItem(itemWithTag("b"));
    EXPECT_EQ(collection().itemByTag("a"), address);
    EXPECT_NE(collection().itemByTag("b"), address);
    EXPECT_EQ(collection().itemByTag("c"), nullptr);
    EXPECT_EQ(collection().itemByTag(""), nullptr);
}

TEST_F(CollectionTest, KeepsACategoryAsItWasAdded)
{
    EXPECT_FALSE(collection().hasCategory("a"));
    collection().addCategory("b", {CategoryInfo::Kind::Thematic, 0});
    collection().addCategory("a", {CategoryInfo::Kind::User, 1});
    collection().addCategory("b", {CategoryInfo::Kind::User, 2});
    EXPECT_TRUE(collection().hasCategory("a"));
    auto const categories = collection().categories();
    ASSERT_EQ(categories.size(), 2U);
    EXPECT_EQ(categories[0].name, "b");
    EXPECT_EQ(categories[0].info.kind, CategoryInfo::Kind::Thematic);
    EXPECT_EQ(categories[0].info.position, 0);
    EXPECT_EQ(categories[1].name, "a");
}

TEST_F(CollectionTest, MayBeUsedFromSeveralThreads)
{
    constexpr int perThread = 500;
    std::vector<std::thread> threads;
    for (int index = 0; index < 4; ++index) {
        threads.emplace_back([this, index] {
            for (int number = 0; number < perThread; ++number) {
                QString const tag = QString::number(index * perThread + number);
                if (!collection().hasCategory(QString::number(number % 7)))
                    collection().addCategory(QString::number(number % 7), {});
                collection().addItem(itemWithTag(tag));
                EXPECT_NE(collection().itemByTag(tag), nullptr);
                EXPECT_FALSE(collection().items().empty());
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(collection().items().size(), 4U * perThread);
    EXPECT_EQ(collection().categories().size(), 7U);
}

} // namespace
