#include <EditorUtil/ItemStorage.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <future>
#include <memory>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

#include "../../support/LogCapture.h"
#include "../EditorModel/TestEffect.h"
#include "ItemFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;
using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using Testing::ItemFolder;
using testing::StartsWith;

/// Collects the tags of what is delivered. Deliveries never overlap, so it needs no lock.
class Tags
{
public:
    ItemCallback callback()
    {
        return [this](serialize_ptr<IItem> && item) { tags.push_back(item->payload().tag.toStdString()); };
    }

    std::vector<std::string> tags;
};

TEST(ItemStorage, DeliversTheItemsOfAFolder)
{
    ItemFolder const folder;
    folder.write("two.effect.json", Testing::itemText("2", R"(["category_b", "category_a"])"));
    ItemStorage storage;
    std::vector<QString> categories;
    std::thread::id thread;
    storage.loadItems(folder.path(), "Samples", [&](serialize_ptr<IItem> && item) {
        thread = std::this_thread::get_id();
        categories.assign(item->categories().begin(), item->categories().end());
        EXPECT_EQ(item->payload().tag, "2");
        EXPECT_EQ(item.storage.size(), 1U);
    });
    storage.waitForAll();
    EXPECT_THAT(categories, ElementsAre("category_a", "category_b"));
    EXPECT_NE(thread, std::this_thread::get_id());
}

class ItemStorageOrderTest : public testing::TestWithParam<unsigned>
{};

INSTANTIATE_TEST_SUITE_P(Threads, ItemStorageOrderTest, testing::Values(0U, 1U, 2U, 7U));

TEST_P(ItemStorageOrderTest, IsThatOfTheLoadsAndOfTheFileNames)
{
    // More files than one thread takes at a time, and sorted by their bytes: capitals first, then "é".
    std::vector<std::string> names{"B", "a", "b", "é"};
    for (int number = 100; number < 300; ++number)
        names.push_back("n" + std::to_string(number));
    std::sort(names.begin(), names.end());
    ItemFolder const first;
    for (auto name = names.rbegin(); name != names.rend(); ++name)
        first.add(*name);
    ItemFolder const second;
    second.add("A");
    names.push_back("A");

    Tags delivered;
    ItemStorage storage(GetParam());
    storage.loadItems(first.path(), "First", delivered.callback());
    storage.loadItems(second.path(), "Second", delivered.callback());
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, ElementsAreArray(names));
    auto const progress = storage.progress();
    EXPECT_EQ(progress.found, names.size());
    EXPECT_EQ(progress.delivered, names.size());
    EXPECT_EQ(progress.failed, 0U);
}

TEST(ItemStorage, TakesItemFilesOnly)
{
    ItemFolder const folder;
    folder.add("item");
    for (char const * const name :
        {"item.json", ".effect.json", "item.effect.json~", "item.EFFECT.JSON", "effect.json"})
        folder.write(name, "no item");
    ASSERT_EQ(::mkdir(folder.file("folder").c_str(), 0700), 0);
    folder.add("folder/inside");

    LogCapture const log;
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", delivered.callback());
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, ElementsAre("item"));
    EXPECT_THAT(log.errors(), IsEmpty());
}

TEST(ItemStorage, TakesPathsRelativeToTheWorkingFolder)
{
    ItemFolder const folder;
    folder.add("item");
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(QDir::current().relativeFilePath(folder.path()), "Samples", delivered.callback());
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, ElementsAre("item"));
}

TEST(ItemStorage, AFolderThatIsNotThereIsEmpty)
{
    ItemFolder const folder;
    LogCapture const log;
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", delivered.callback());
    storage.loadItems(folder.path() + "/missing", "Samples", delivered.callback());
    storage.loadItems(QString(), "Samples", delivered.callback());
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, IsEmpty());
    EXPECT_THAT(log.errors(), IsEmpty());
}

TEST(ItemStorage, OneLineForEachFileThatCannotBeRead)
{
    ItemFolder const folder;
    for (char const * const name : {"a", "f", "z"})
        folder.add(name);
    folder.write("b.effect.json", "{");
    folder.write("c.effect.json", "");
    ASSERT_EQ(::mkdir(folder.file("d.effect.json").c_str(), 0700), 0);
    ASSERT_EQ(::mkfifo(folder.file("e.effect.json").c_str(), 0600), 0);
    folder.write("g.effect.json", "");
    ASSERT_EQ(::truncate(folder.file("g.effect.json").c_str(), std::int64_t(1) << 40), 0);
    folder.write("h.effect.json", std::string(1'000'000, '['));
    ASSERT_EQ(::symlink("gone", folder.file("i.effect.json").c_str()), 0);
    folder.write("j.effect.json", Testing::itemText("\xFF"));
    folder.write("plain", "");

    LogCapture const log;
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", delivered.callback());
    storage.loadItems(folder.path() + "/plain", "Samples", delivered.callback());
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, ElementsAre("a", "f", "z"));
    auto const line = [&](std::string const & name, std::string const & reason) {
        return StartsWith("Couldn't read " + folder.file(name) + ": " + reason);
    };
    EXPECT_THAT(log.errors(),
        ElementsAre(line("b.effect.json", "this is no JSON"), line("c.effect.json", "is empty"),
            line("d.effect.json", "is not a regular file"), line("e.effect.json", "is not a regular file"),
            line("g.effect.json", "is larger than 16 MiB"), line("h.effect.json", "the JSON text is nested more than"),
            line("i.effect.json", "No such file or directory"), line("j.effect.json", "this is no JSON"),
            line("plain", "Not a directory")));
    for (std::string const & error : log.errors())
        EXPECT_EQ(error.find('\n'), std::string::npos) << error;
    auto const progress = storage.progress();
    EXPECT_EQ(progress.found, 12U);
    EXPECT_EQ(progress.delivered, 3U);
    EXPECT_EQ(progress.failed, 9U);
}

TEST(ItemStorage, LogsUtf8WhateverTheBytes)
{
    ItemFolder const folder;
    // Not through Qt, which has no such names. The text is cut in the middle of a character as well.
    std::string const name = folder.file("w\xE4rm\n.effect.json");
    std::FILE * const file = std::fopen(name.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    EXPECT_GE(std::fputs("{\xC3", file), 0);
    ASSERT_EQ(std::fclose(file), 0);

    LogCapture const log;
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", delivered.callback());
    storage.loadItems(folder.path(), "Samples", [](auto &&) {});
    storage.waitForAll();
    EXPECT_EQ(std::remove(name.c_str()), 0);
    ASSERT_EQ(log.errors().size(), 2U);
    EXPECT_THAT(log.errors()[0],
        StartsWith("Couldn't read " + folder.file("w\xEF\xBF\xBDrm\xEF\xBF\xBD.effect.json: this is no JSON")));
    for (std::string const & error : log.errors())
        EXPECT_EQ(QString::fromStdString(error).toStdString(), error) << "this is no UTF-8";
}

TEST(ItemStorage, GoesOnAfterACallbackThatThrows)
{
    ItemFolder const folder;
    folder.add("a");
    folder.add("b");
    LogCapture const log;
    std::vector<std::string> tags;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", [&](serialize_ptr<IItem> && item) {
        tags.push_back(item->payload().tag.toStdString());
        if (tags.size() == 1)
            throw std::runtime_error("no room");
    });
    storage.waitForAll();
    EXPECT_THAT(tags, ElementsAre("a", "b"));
    EXPECT_THAT(log.errors(), ElementsAre("Couldn't deliver an item: no room"));
}

TEST(ItemStorage, MayBeGivenLoadsByCallbacks)
{
    ItemFolder const outer;
    outer.add("outer");
    ItemFolder const inner;
    inner.add("inner");
    Tags delivered;
    ItemStorage storage;
    storage.loadItems(outer.path(), "Samples", [&](serialize_ptr<IItem> && item) {
        delivered.callback()(std::move(item));
        storage.loadItems(inner.path(), "Samples", delivered.callback());
    });
    storage.waitForAll();
    EXPECT_THAT(delivered.tags, ElementsAre("outer", "inner"));
}

TEST(ItemStorage, ACallbackMayUseTheStorageWhenItGoes)
{
    struct Owned
    {
        explicit Owned(ItemStorage & storage)
            : m_storage(storage)
        {}
        ~Owned() { m_storage.stop(); }

    private:
        ItemStorage & m_storage;
    };
    ItemFolder const empty;
    ItemFolder const full;
    full.add("a");
    std::vector<std::weak_ptr<Owned>> owned;
    {
        ItemStorage storage;
        for (ItemFolder const * const folder : {&empty, &full, &empty}) {
            auto given = std::make_shared<Owned>(storage);
            owned.emplace_back(given);
            storage.loadItems(folder->path(), "Samples", [given = std::move(given)](serialize_ptr<IItem> &&) {});
        }
        storage.waitForAll();
    }
    for (std::weak_ptr<Owned> const & gone : owned)
        EXPECT_TRUE(gone.expired());
}

TEST(ItemStorage, OneLineForAFolderThatCannotBeListedInItsTurn)
{
    ItemFolder const folder;
    folder.add("a");
    folder.write("no folder", "");
    LogCapture const log;
    std::vector<std::string> order;
    ItemStorage storage;
    auto const load = [&](QString const & path) {
        storage.loadItems(path, "Samples", [&](serialize_ptr<IItem> && item) {
            order.push_back(item->payload().tag.toStdString() + " after " + std::to_string(log.errors().size()));
        });
    };
    load(folder.path());
    load(folder.path() + "/no folder");
    load(folder.path());
    storage.waitForAll();
    EXPECT_THAT(order, ElementsAre("a after 0", "a after 1"));
    EXPECT_THAT(
        log.errors(), ElementsAre("Couldn't read " + folder.path().toStdString() + "/no folder: Not a directory"));
    auto const progress = storage.progress();
    EXPECT_EQ(progress.found, 3U);
    EXPECT_EQ(progress.delivered, 2U);
    EXPECT_EQ(progress.failed, 1U);
}

TEST(ItemStorage, ACallbackCannotWait)
{
    ItemFolder const folder;
    folder.add("a");
    LogCapture const log;
    ItemStorage storage;
    storage.loadItems(folder.path(), "Samples", [&](serialize_ptr<IItem> &&) { storage.waitForAll(); });
    storage.waitForAll();
    EXPECT_THAT(
        log.errors(), ElementsAre("Couldn't deliver an item: a callback of the item storage would wait for itself"));
}

/// A folder of many items, made once.
class ItemStorageLargeTest : public testing::Test
{
protected:
    static constexpr std::size_t count = 10'000;

    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<ItemFolder>();
        for (std::size_t number = 0; number < count; ++number)
            s_folder->add(std::to_string(number));
    }
    static void TearDownTestSuite() { s_folder.reset(); }

    static ItemFolder const & folder() { return *s_folder; }

    /// Counts, and waits at a given delivery until it is released.
    class Gate
    {
    public:
        explicit Gate(std::size_t closedAt)
            : m_closedAt(closedAt)
        {}
        ItemCallback callback()
        {
            return [this](serialize_ptr<IItem> &&) {
                if (++count == m_closedAt) {
                    m_reached.set_value();
                    m_opened.get_future().wait();
                }
            };
        }
        void waitUntilReached() { m_reached.get_future().wait(); }
        void open() { m_opened.set_value(); }

        std::atomic<std::size_t> count{0};

    private:
        std::size_t const m_closedAt;
        std::promise<void> m_reached;
        std::promise<void> m_opened;
    };

private:
    static std::unique_ptr<ItemFolder> s_folder;
};

std::unique_ptr<ItemFolder> ItemStorageLargeTest::s_folder;

TEST_F(ItemStorageLargeTest, ALoadDoesNotWaitForItsItems)
{
    Gate gate(1);
    ItemStorage storage;
    storage.loadItems(folder().path(), "Samples", gate.callback());
    gate.waitUntilReached();
    EXPECT_FALSE(storage.waitForAll(10ms));
    auto const progress = storage.progress();
    EXPECT_EQ(progress.found, count);
    EXPECT_EQ(progress.delivered, 0U);
    gate.open();
    storage.waitForAll();
    EXPECT_EQ(gate.count, count);
    EXPECT_TRUE(storage.waitForAll(0ms));
}

TEST_F(ItemStorageLargeTest, StopWaitsForTheCallbackAndDropsTheRest)
{
    Gate gate(5);
    ItemStorage storage;
    storage.loadItems(folder().path(), "Samples", gate.callback());
    storage.loadItems(folder().path(), "Others", gate.callback());
    gate.waitUntilReached();

    auto stopping = std::async(std::launch::async, [&] { storage.stop(); });
    EXPECT_EQ(stopping.wait_for(50ms), std::future_status::timeout);
    gate.open();
    stopping.wait();
    EXPECT_EQ(gate.count, 5U);
    std::this_thread::sleep_for(20ms);
    EXPECT_EQ(gate.count, 5U);

    // Later loads are carried out.
    std::size_t later = 0;
    storage.loadItems(folder().path(), "Samples", [&](serialize_ptr<IItem> &&) { ++later; });
    storage.waitForAll();
    EXPECT_EQ(later, count);
}

TEST_F(ItemStorageLargeTest, SkipsTheLoadsThatTheirOwnerDropped)
{
    ItemFolder const broken;
    broken.write("broken.effect.json", "{");
    Gate dropped(5);
    std::size_t others = 0;
    LogCapture const log;
    ItemStorage storage;
    ItemLoads loads;
    loads.load(storage, folder().path(), "Samples", dropped.callback());
    storage.loadItems(folder().path(), "Samples", [&](serialize_ptr<IItem> &&) { ++others; });
    loads.load(storage, folder().path(), "Samples", dropped.callback());
    loads.load(storage, broken.path(), "Samples", dropped.callback());
    dropped.waitUntilReached();
    auto dropping = std::async(std::launch::async, [&] { loads.drop(); });
    EXPECT_EQ(dropping.wait_for(20ms), std::future_status::timeout);
    dropped.open();
    dropping.wait();
    EXPECT_EQ(dropped.count, 5U);
    storage.waitForAll();
    EXPECT_EQ(dropped.count, 5U);
    EXPECT_EQ(others, count);
    EXPECT_EQ(storage.progress().delivered, 5 + count);
    EXPECT_THAT(log.errors(), IsEmpty());
}

TEST_F(ItemStorageLargeTest, MayGoBeforeTheOwnerOfItsLoads)
{
    ItemLoads loads;
    std::size_t delivered = 0;
    {
        ItemStorage storage;
        loads.load(storage, folder().path(), "Samples", [&](serialize_ptr<IItem> &&) { ++delivered; });
    }
    loads.drop();
    ItemStorage storage;
    delivered = 0;
    loads.load(storage, folder().path(), "Samples", [&](serialize_ptr<IItem> &&) { ++delivered; });
    storage.waitForAll();
    EXPECT_EQ(delivered, count);
}

TEST_F(ItemStorageLargeTest, ACallbackMayDropItsOwnLoad)
{
    std::size_t delivered = 0;
    ItemStorage storage;
    storage.loadItems(folder().path(), "Samples", [&](serialize_ptr<IItem> &&) {
        if (++delivered == 3)
            storage.stop();
    });
    storage.waitForAll();
    EXPECT_EQ(delivered, 3U);
}

TEST_F(ItemStorageLargeTest, ASlowCallbackDoesNotMakeTheFolderPileUp)
{
    // What is read ahead is bounded; all of it arrives nevertheless.
    Gate gate(1);
    ItemStorage storage(4);
    storage.loadItems(folder().path(), "Samples", gate.callback());
    gate.waitUntilReached();
    std::this_thread::sleep_for(50ms);
    gate.open();
    storage.waitForAll();
    EXPECT_EQ(gate.count, count);
}

TEST_F(ItemStorageLargeTest, MayBeDestroyedAtAnyTime)
{
    for (std::chrono::microseconds const delay : {0us, 100us, 1000us, 5000us, 20000us}) {
        std::size_t delivered = 0; // gone before the storage would be, were it not stopped by its end
        ItemStorage storage(3);
        storage.loadItems(folder().path(), "Samples", [&](serialize_ptr<IItem> &&) { ++delivered; });
        storage.loadItems(folder().path(), "Others", [&](serialize_ptr<IItem> &&) { ++delivered; });
        std::this_thread::sleep_for(delay);
    }
}

} // namespace
