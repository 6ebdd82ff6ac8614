#include <EditorModel/ItemStorage.h>

#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;
using namespace std::chrono_literals;

/// Keeps what it is given.
class KeepingStorage final : public IItemStorage
{
public:
    void loadItems(QString const & path, QString const & collectionName, ItemCallback callback) override
    {
        paths.push_back(path);
        collections.push_back(collectionName);
        callbacks.push_back(std::move(callback));
    }

    std::vector<QString> paths;
    std::vector<QString> collections;
    std::vector<ItemCallback> callbacks;
};

TEST(ItemLoads, ArePassedOn)
{
    KeepingStorage storage;
    ItemLoads loads;
    int delivered = 0;
    loads.load(storage, "/folder", "Samples", [&](serialize_ptr<IItem> && item) {
        EXPECT_EQ(item.pointer, nullptr);
        ++delivered;
    });
    ASSERT_EQ(storage.callbacks.size(), 1U);
    EXPECT_EQ(storage.paths[0], "/folder");
    EXPECT_EQ(storage.collections[0], "Samples");
    EXPECT_TRUE(isWanted(storage.callbacks[0]));
    storage.callbacks[0]({});
    storage.callbacks[0]({});
    EXPECT_EQ(delivered, 2);
}

TEST(ItemLoads, ArriveNoMoreOnceTheyAreDropped)
{
    KeepingStorage storage;
    ItemLoads loads;
    ItemLoads others;
    int delivered = 0;
    int deliveredToOthers = 0;
    loads.load(storage, "/folder", "Samples", [&](serialize_ptr<IItem> &&) { ++delivered; });
    others.load(storage, "/folder", "Samples", [&](serialize_ptr<IItem> &&) { ++deliveredToOthers; });
    loads.drop();
    loads.drop();
    loads.load(storage, "/folder", "Samples", [&](serialize_ptr<IItem> &&) { delivered += 10; });
    for (ItemCallback const & callback : storage.callbacks)
        callback({});
    EXPECT_EQ(delivered, 10);
    EXPECT_EQ(deliveredToOthers, 1);
    EXPECT_FALSE(isWanted(storage.callbacks[0]));
    EXPECT_TRUE(isWanted(storage.callbacks[1]));
    EXPECT_TRUE(isWanted(storage.callbacks[2]));
}

TEST(ItemLoads, AreDroppedWithTheirOwner)
{
    KeepingStorage storage;
    auto const held = std::make_shared<int>(0);
    {
        ItemLoads loads;
        loads.load(storage, "/folder", "Samples", [held](serialize_ptr<IItem> &&) { ++*held; });
        EXPECT_EQ(held.use_count(), 2);
    }
    EXPECT_FALSE(isWanted(storage.callbacks[0]));
    storage.callbacks[0]({});
    EXPECT_EQ(*held, 0);
    // The storage still has its function, which is empty inside.
    EXPECT_EQ(held.use_count(), 1);
}

TEST(ItemLoads, MayOutliveTheirStorage)
{
    auto storage = std::make_unique<KeepingStorage>();
    auto const held = std::make_shared<int>(0);
    ItemLoads loads;
    loads.load(*storage, "/folder", "Samples", [held](serialize_ptr<IItem> &&) {});
    storage.reset();
    EXPECT_EQ(held.use_count(), 1);
    loads.drop();
}

TEST(ItemLoads, ACallbackThatRunsIsWaitedFor)
{
    KeepingStorage storage;
    ItemLoads loads;
    std::promise<void> entered;
    std::promise<void> opened;
    bool isDone = false;
    loads.load(storage, "/folder", "Samples", [&](serialize_ptr<IItem> &&) {
        entered.set_value();
        opened.get_future().wait();
        isDone = true;
    });
    std::thread delivering([&] { storage.callbacks[0]({}); });
    entered.get_future().wait();
    // Two may drop at once, and neither is back before the callback is.
    auto first = std::async(std::launch::async, [&] { loads.drop(); });
    EXPECT_EQ(first.wait_for(20ms), std::future_status::timeout);
    auto second = std::async(std::launch::async, [&] { loads.drop(); });
    EXPECT_EQ(second.wait_for(20ms), std::future_status::timeout);
    EXPECT_FALSE(isWanted(storage.callbacks[0]));
    opened.set_value();
    first.wait();
    second.wait();
    EXPECT_TRUE(isDone);
    delivering.join();
}

TEST(ItemLoads, ACallbackThatThrowsHasEnded)
{
    KeepingStorage storage;
    ItemLoads loads;
    loads.load(storage, "/folder", "Samples", [](serialize_ptr<IItem> &&) { throw 1; });
    EXPECT_THROW(storage.callbacks[0]({}), int);
    loads.drop();
}

TEST(ItemLoads, ACallbackMayDropThem)
{
    KeepingStorage storage;
    ItemLoads loads;
    int delivered = 0;
    loads.load(storage, "/folder", "Samples", [&, text = std::string(100, 'x')](serialize_ptr<IItem> &&) {
        if (delivered == 0) {
            // From within a delivery within a delivery.
            ++delivered;
            storage.callbacks[0]({});
            return;
        }
        loads.drop();
        delivered += static_cast<int>(text.size());
    });
    storage.callbacks[0]({});
    EXPECT_EQ(delivered, 101);
    storage.callbacks[0]({});
    EXPECT_EQ(delivered, 101);
}

TEST(ItemLoads, ACallbackOfNobodyIsWanted)
{
    EXPECT_TRUE(isWanted([](serialize_ptr<IItem> &&) {}));
    EXPECT_TRUE(isWanted({}));
}

} // namespace
