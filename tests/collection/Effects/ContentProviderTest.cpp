#include <collection/Effects/ContentProvider.h>

#include <chrono>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/Resource.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/CategoriesConfig.h>
#include <EditorUtil/CollectionHolder.h>
#include <EditorUtil/ItemFile.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/ColorCorrection.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <effects/Shaders.h>
#include <support/Items.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;
using namespace std::chrono_literals;
using Effect::ContentProvider;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::ManualStorage;
using testing::SizeIs;

/// The indices of the loads, in the order in which they are asked for.
enum LoadIndex : std::size_t
{
    effects,
    overlayEffects,
    effectsAudio,
    audioEnhance,
    colorFilters,
    userColorFilters,
    luts,
    userLuts,
    pipEffects,
    masks,
    loadCount
};

class ContentProviderTest : public testing::Test
{
protected:
    ContentProviderTest()
    {
        ::Settings::setStockRoot(m_folder.path() + "/stock");
        ::Settings::setUserRoot(m_folder.path() + "/user");
    }
    ~ContentProviderTest() override
    {
        ::Settings::setStockRoot(QString());
        ::Settings::setUserRoot(QString());
    }

    QString stock(QString const & name) const { return m_folder.path() + "/stock/" + name; }
    QString user(QString const & name) const { return m_folder.path() + "/user/" + name; }

    /// Writes a small file, and the folder it is to lie in.
    static void touch(QString const & path)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_GT(file.write("x"), 0);
    }

    static std::vector<QString> categoryNames(QString const & collection)
    {
        std::vector<QString> names;
        for (Category const & category : CollectionProvider::collection(collection)->categories())
            names.push_back(category.name);
        return names;
    }

private:
    QTemporaryDir m_folder;
};

/// Of a test's own, since registrations last as long as the process.
Resource::ID resourceId(char const * test)
{
    return Resource::ID(QString::fromLatin1(test), Resource::Type::Blob);
}

std::unique_ptr<Effect::Lut> lutWithFile(Resource::ID const & id, QString const & path)
{
    auto lut = std::make_unique<Effect::Lut>(id.name());
    lut->resource = id;
    lut->resourcePath = path;
    return lut;
}

TEST_F(ContentProviderTest, NeedsAnItemStorage)
{
    EXPECT_THROW(ContentProvider(), std::logic_error);
    EXPECT_EQ(Effect::Factory::factory(), nullptr);
    EXPECT_THAT(CollectionProvider::collections(), IsEmpty());
}

TEST_F(ContentProviderTest, InstallsTheFactoryForAsLongAsItLives)
{
    ManualStorage storage;
    // It is there before the first load.
    storage.onLoad = [](auto const &) { EXPECT_NE(Effect::Factory::factory(), nullptr); };
    auto provider = std::make_unique<ContentProvider>();
    EXPECT_THAT(Effect::Factory::videoEffectSettings(Effect::AutoContrast(), {}).settings, SizeIs(1));
    provider.reset();
    EXPECT_EQ(Effect::Factory::factory(), nullptr);
}

TEST_F(ContentProviderTest, AsksForTheItemsInOrder)
{
    ManualStorage const storage;
    ContentProvider const provider;
    std::vector<std::pair<QString, QString>> asked;
    for (auto const & load : storage.loads)
        asked.emplace_back(load.path, load.collection);
    std::vector<std::pair<QString, QString>> const expected{
        {stock("VideoEffects"), "Effects"},
        {stock("OverlayEffects"), "OverlayEffects"},
        {stock("AudioEffects"), "EffectsAudio"},
        {stock("AudioEnhance"), "AudioEnhance"},
        {stock("ColorFilters"), "ColorFilters"},
        {user("Effects/ManualEnhance"), "ColorFilters"},
        {stock("Luts"), "Luts"},
        {user("Effects/Lut"), "Luts"},
        {stock("PipEffects"), "PipEffects"},
        {stock("Masks"), "Masks"},
    };
    EXPECT_EQ(asked, expected);
}

TEST_F(ContentProviderTest, RegistersItsCollectionsInOrder)
{
    ManualStorage storage;
    // A load's collection is there when its items may come.
    storage.onLoad = [](auto const & load) { EXPECT_NE(CollectionProvider::collection(load.collection), nullptr); };
    auto provider = std::make_unique<ContentProvider>();
    std::vector<QString> names;
    for (ICollection const * const collection : CollectionProvider::collections()) {
        names.push_back(collection->name());
        EXPECT_THAT(collection->items(), IsEmpty());
    }
    EXPECT_THAT(names, ElementsAre("Effects", "OverlayEffects", "EffectsAudio", "AudioEnhance", "ColorFilters", "Luts",
                           "Shader effects", "PipEffects", "Masks"));
    provider.reset();
    EXPECT_THAT(CollectionProvider::collections(), IsEmpty());
}

TEST_F(ContentProviderTest, ShaderEffectsStayEmptyWhateverIsOnDisk)
{
    for (char const * const folder : {"Shader effects", "ShaderEffects", "Shaders"})
        storeItem(stock(folder), "item", Effect::ShaderISF());
    ItemStorage storage;
    CollectionProvider::setItemStorage(&storage);
    {
        ContentProvider const provider;
        storage.waitForAll();
        EXPECT_EQ(storage.progress().found, 0U);
        EXPECT_THAT(CollectionProvider::collection("Shader effects")->items(), IsEmpty());
    }
    CollectionProvider::setItemStorage(nullptr);
}

TEST_F(ContentProviderTest, TakesItemsThatComeWhileItIsBeingMade)
{
    ManualStorage storage;
    storage.onLoad = [](auto const & load) { load.callback(makeItem(std::make_unique<Effect::Crop>())); };
    ContentProvider const provider;
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(1));
    EXPECT_THAT(CollectionProvider::collection("ColorFilters")->items(), SizeIs(2));
    EXPECT_THAT(CollectionProvider::collection("Masks")->items(), SizeIs(1));
}

TEST_F(ContentProviderTest, AStockItemGoesIntoItsCollectionAsItIs)
{
    ManualStorage const storage;
    ContentProvider const provider;
    storage.deliver(masks, std::make_unique<Effect::Mask>(), {"category_b", "category_a"});
    auto const items = CollectionProvider::collection("Masks")->items();
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_EQ(items[0]->payload().id, Effect::Id::Mask);
    EXPECT_THAT(items[0]->categories(), ElementsAre("category_a", "category_b"));
    EXPECT_FALSE(items[0]->userFlagA());
    EXPECT_FALSE(items[0]->userFlagB());
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), IsEmpty());
}

TEST_F(ContentProviderTest, AStockItemBringsItsCategories)
{
    ManualStorage const storage;
    ContentProvider const provider;
    // In ascending order, each once.
    storage.deliver(effects, std::make_unique<Effect::Crop>(), {"b", "a"});
    storage.deliver(effects, std::make_unique<Effect::Crop>(), {"c", "a"});
    storage.deliver(effects, std::make_unique<Effect::Crop>(), {"b"});
    EXPECT_THAT(categoryNames("Effects"), ElementsAre("a", "b", "c"));
    auto const categories = CollectionProvider::collection("Effects")->categories();
    for (std::size_t index = 0; index < categories.size(); ++index) {
        EXPECT_EQ(categories[index].info.kind, CategoryInfo::Kind::Thematic);
        EXPECT_EQ(categories[index].info.position, static_cast<int>(index));
    }
    EXPECT_THAT(categoryNames("Masks"), IsEmpty());
}

TEST_F(ContentProviderTest, AStockItemWithoutCategoriesBringsNone)
{
    ManualStorage const storage;
    ContentProvider const provider;
    storage.deliver(effects, std::make_unique<Effect::Crop>());
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(1));
    EXPECT_THAT(categoryNames("Effects"), IsEmpty());
}

TEST_F(ContentProviderTest, AStockItemsResourceIsRegistered)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("AStockItemsResource");
    touch(stock("Luts/warm.cube"));
    storage.deliver(luts, lutWithFile(id, stock("Luts/warm.cube")));
    EXPECT_TRUE(Resource::isResourceRegistered(id));
    EXPECT_EQ(Resource::registeredPath(id.name()), stock("Luts/warm.cube"));
}

/// A holder with a shader in it and, in a holder inside, a LUT.
class HolderItemTest : public ContentProviderTest
{
protected:
    static Effect::EffectsHolder const & asHolder(Effect::Object const & effect)
    {
        return dynamic_cast<Effect::EffectsHolder const &>(effect);
    }
    static Effect::Object const & shaderIn(IItem const & item) { return *asHolder(item.payload()).effects.at(0); }
    static Effect::Object const & lutIn(IItem const & item)
    {
        return *asHolder(*asHolder(item.payload()).effects.at(2)).effects.at(0);
    }

    static std::unique_ptr<Effect::EffectsHolder> holder(QString const & shaderPath, QString const & lutPath)
    {
        auto shader = std::make_unique<Effect::ShaderISF>("HolderItem.fs");
        shader->resourcePath = shaderPath;
        auto lut = std::make_unique<Effect::Lut>("HolderItem.cube");
        lut->resourcePath = lutPath;
        auto inside = std::make_unique<Effect::EffectsHolder>();
        inside->addEffect(std::move(lut));
        auto whole = std::make_unique<Effect::EffectsHolder>();
        whole->addEffect(std::move(shader))->addEffect(nullptr)->addEffect(std::move(inside));
        return whole;
    }
};

TEST_F(HolderItemTest, PathsInsideAreRelativeToTheFolder)
{
    storeItem(stock("Masks"), "relative", *holder("shaders/HolderItem.fs", "../Luts/HolderItem.cube"));
    auto const item = readItem(stock("Masks").toStdString(), "relative.effect.json");
    EXPECT_EQ(shaderIn(*item).resourcePath, stock("Masks/shaders/HolderItem.fs"));
    EXPECT_EQ(lutIn(*item).resourcePath, stock("Luts/HolderItem.cube"));
}

TEST_F(HolderItemTest, PathsIntoTheFolderAreStoredRelativeToIt)
{
    storeItem(stock("Masks"), "absolute", *holder(stock("Masks/shaders/HolderItem.fs"), stock("Luts/HolderItem.cube")));
    QFile file(stock("Masks/absolute.effect.json"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray const text = file.readAll();
    EXPECT_TRUE(text.contains("\"resourcePath\": \"shaders/HolderItem.fs\"")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"resourcePath\": \"" + stock("Luts/HolderItem.cube").toUtf8() + '"'))
        << text.toStdString();
    auto const item = readItem(stock("Masks").toStdString(), "absolute.effect.json");
    EXPECT_EQ(shaderIn(*item).resourcePath, stock("Masks/shaders/HolderItem.fs"));
    EXPECT_EQ(lutIn(*item).resourcePath, stock("Luts/HolderItem.cube"));
}

TEST_F(HolderItemTest, ItsFilesAreRegistered)
{
    ManualStorage const storage;
    ContentProvider const provider;
    touch(stock("Masks/HolderItem.fs"));
    touch(stock("Masks/HolderItem.cube"));
    storage.deliver(masks, holder(stock("Masks/HolderItem.fs"), stock("Masks/HolderItem.cube")));
    EXPECT_EQ(Resource::registeredPath("HolderItem.fs"), stock("Masks/HolderItem.fs"));
    EXPECT_EQ(Resource::registeredPath("HolderItem.cube"), stock("Masks/HolderItem.cube"));
}

TEST_F(ContentProviderTest, AUsersColorFilterIsMarkedAndNothingElse)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("AUsersColorFilter");
    touch(user("Effects/ManualEnhance/file"));
    auto effect = std::make_unique<Effect::ManualEnhance>();
    effect->resource = id;
    effect->resourcePath = user("Effects/ManualEnhance/file");
    storage.deliver(userColorFilters, std::move(effect), {"mine"});

    auto const items = CollectionProvider::collection("ColorFilters")->items();
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_TRUE(items[0]->userFlagA());
    EXPECT_TRUE(items[0]->userFlagB());
    EXPECT_THAT(items[0]->categories(), ElementsAre("mine"));
    EXPECT_THAT(categoryNames("ColorFilters"), IsEmpty());
    EXPECT_FALSE(Resource::isResourceRegistered(id));
}

TEST_F(ContentProviderTest, AUsersLutBringsItsBlobAndGetsTheUsersCategory)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("AUsersLut.cube");
    touch(user("Blobs/AUsersLut.cube"));
    storage.deliver(userLuts, std::make_unique<Effect::Lut>(id.name()), {"mine"});

    auto const items = CollectionProvider::collection("Luts")->items();
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_TRUE(items[0]->userFlagA());
    EXPECT_TRUE(items[0]->userFlagB());
    EXPECT_THAT(items[0]->categories(), ElementsAre("category_user", "mine"));
    EXPECT_THAT(categoryNames("Luts"), IsEmpty());
    EXPECT_EQ(Resource::registeredPath(id.name()), user("Blobs/AUsersLut.cube"));
}

TEST_F(ContentProviderTest, AUsersLutWithoutItsBlobIsThereAllTheSame)
{
    ManualStorage const storage;
    ContentProvider const provider;
    storage.deliver(userLuts, std::make_unique<Effect::Lut>(QString("gone.cube")));
    EXPECT_THAT(CollectionProvider::collection("Luts")->items(), SizeIs(1));
    EXPECT_FALSE(Resource::isResourceRegistered(resourceId("gone.cube")));
}

TEST_F(ContentProviderTest, AUsersBlobLeavesTheStocksOfItsNameAlone)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("AUsersBlobLeaves.cube");
    touch(stock("Luts/AUsersBlobLeaves.cube"));
    touch(user("Blobs/AUsersBlobLeaves.cube"));
    storage.deliver(luts, lutWithFile(id, stock("Luts/AUsersBlobLeaves.cube")));
    storage.deliver(userLuts, std::make_unique<Effect::Lut>(id.name()));
    EXPECT_EQ(Resource::registeredPath(id.name()), stock("Luts/AUsersBlobLeaves.cube"));
    EXPECT_THAT(CollectionProvider::collection("Luts")->items(), SizeIs(2));
}

TEST_F(ContentProviderTest, AUsersBlobMayLieDeeper)
{
    ManualStorage const storage;
    ContentProvider const provider;
    touch(user("Blobs/AUsersBlobMay/LieDeeper.cube"));
    storage.deliver(userLuts, std::make_unique<Effect::Lut>("AUsersBlobMay/LieDeeper.cube"));
    EXPECT_EQ(Resource::registeredPath("AUsersBlobMay/LieDeeper.cube"), user("Blobs/AUsersBlobMay/LieDeeper.cube"));
    EXPECT_FALSE(Resource::isResourceRegistered(resourceId("LieDeeper.cube")));
}

TEST_F(ContentProviderTest, AUsersBlobIsNotTakenFromOutsideOfItsFolder)
{
    ManualStorage const storage;
    ContentProvider const provider;
    touch(user("Blobs/inside")); // without the folder, no path leads through it
    touch(user("../AUsersBlobIsOutside.cube"));
    storage.deliver(userLuts, std::make_unique<Effect::Lut>("../../AUsersBlobIsOutside.cube"));
    EXPECT_FALSE(Resource::isResourceRegistered(resourceId("../../AUsersBlobIsOutside.cube")));
    EXPECT_FALSE(Resource::isResourceRegistered(resourceId("AUsersBlobIsOutside.cube")));
    EXPECT_THAT(CollectionProvider::collection("Luts")->items(), SizeIs(1));
}

TEST_F(ContentProviderTest, AUsersLutFileIsNotRegisteredByItsPath)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("AUsersLutFile");
    touch(user("Effects/Lut/file.cube"));
    storage.deliver(userLuts, lutWithFile(id, user("Effects/Lut/file.cube")));
    EXPECT_FALSE(Resource::isResourceRegistered(id));
}

TEST_F(ContentProviderTest, WhatIsNoLutAmongTheUsersLutsBringsNoBlob)
{
    ManualStorage const storage;
    ContentProvider const provider;
    Resource::ID const id = resourceId("WhatIsNoLut");
    touch(user("Blobs/WhatIsNoLut"));
    auto effect = std::make_unique<Effect::ManualEnhance>();
    effect->resource = id;
    storage.deliver(userLuts, std::move(effect));

    auto const items = CollectionProvider::collection("Luts")->items();
    ASSERT_THAT(items, SizeIs(1));
    EXPECT_TRUE(items[0]->userFlagA());
    EXPECT_TRUE(items[0]->userFlagB());
    EXPECT_THAT(items[0]->categories(), ElementsAre("category_user"));
    EXPECT_FALSE(Resource::isResourceRegistered(id));
}

TEST_F(ContentProviderTest, WithoutAUsersCategoryALutKeepsItsOwn)
{
    ManualStorage const storage;
    ContentProvider const provider;
    QString const before = CategoriesConfig::userCategory("Luts");
    CategoriesConfig::setUserCategory("Luts", QString());
    storage.deliver(userLuts, std::make_unique<Effect::Lut>(), {"mine"});
    CategoriesConfig::setUserCategory("Luts", before);
    EXPECT_THAT(CollectionProvider::collection("Luts")->items()[0]->categories(), ElementsAre("mine"));
}

/// With the storage that hosts use, and folders of many items.
class ContentProviderLoadTest : public ContentProviderTest
{
protected:
    static constexpr int stockCount = 10'000;
    static constexpr int userCount = 50;

    ContentProviderLoadTest()
    {
        Effect::Crop const crop;
        storeItem(stock("VideoEffects"), "0", crop, {"category_a"});
        QString const first = stock("VideoEffects/0.effect.json");
        for (int number = 1; number < stockCount; ++number)
            QFile::link(first, stock("VideoEffects/%1.effect.json").arg(number));
        for (int number = 0; number < userCount; ++number)
            storeItem(user("Effects/ManualEnhance"), QString::number(number), Effect::ManualEnhance());
        CollectionProvider::setItemStorage(&storage);
    }
    ~ContentProviderLoadTest() override { CollectionProvider::setItemStorage(nullptr); }

    ItemStorage storage;
};

TEST_F(ContentProviderLoadTest, FillsTheCollections)
{
    ContentProvider const provider;
    storage.waitForAll();
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(stockCount));
    EXPECT_THAT(categoryNames("Effects"), ElementsAre("category_a"));
    EXPECT_THAT(CollectionProvider::collection("ColorFilters")->items(), SizeIs(userCount));
}

TEST_F(ContentProviderLoadTest, MayBeDestroyedAfterTheStorageWasStopped)
{
    for (auto const delay : {0us, 500us, 3000us}) {
        ContentProvider const provider;
        std::this_thread::sleep_for(delay);
        storage.stop();
    }
}

TEST_F(ContentProviderLoadTest, MayBeDestroyedInTheMiddle)
{
    // The collections drop their loads when they go.
    for (auto const delay : {0us, 500us, 3000us, 10'000us, 30'000us}) {
        ContentProvider const provider;
        std::this_thread::sleep_for(delay);
    }
    EXPECT_EQ(Effect::Factory::factory(), nullptr);
    EXPECT_THAT(CollectionProvider::collections(), IsEmpty());

    ContentProvider const provider;
    storage.waitForAll();
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(stockCount));
}

TEST_F(ContentProviderLoadTest, MayBeReplacedByAnotherOne)
{
    // The new one is there before the old one goes.
    auto provider = std::make_unique<ContentProvider>();
    for (auto const delay : {0us, 500us, 3000us}) {
        std::this_thread::sleep_for(delay);
        provider = std::make_unique<ContentProvider>();
    }
    storage.waitForAll();
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(stockCount));
    EXPECT_THAT(categoryNames("Effects"), ElementsAre("category_a"));
    EXPECT_THAT(CollectionProvider::collection("ColorFilters")->items(), SizeIs(userCount));
}

TEST_F(ContentProviderLoadTest, TwoAtOnceLoadAllOfTheirItems)
{
    ContentProvider const first;
    auto const * const firsts = CollectionProvider::collection("Effects");
    ContentProvider const second;
    auto const * const seconds = CollectionProvider::collection("Effects");
    ASSERT_NE(seconds, firsts);
    {
        ContentProvider const third; // which does not stay
    }
    storage.waitForAll();
    EXPECT_THAT(firsts->items(), SizeIs(stockCount));
    EXPECT_THAT(seconds->items(), SizeIs(stockCount));
}

TEST_F(ContentProviderLoadTest, AHostsHolderGoesWithoutItsLoads)
{
    ContentProvider const provider;
    {
        // The host's own, of a name that the provider uses too.
        CollectionHolder holder;
        holder.registerCollection("Effects");
        holder.loadItems(stock("VideoEffects"), "Effects", [&holder](serialize_ptr<IItem> && item) {
            item.storage.releaseAll();
            holder.collection("Effects")->addItem(std::move(item.pointer));
        });
    }
    storage.waitForAll();
    EXPECT_THAT(CollectionProvider::collection("Effects")->items(), SizeIs(stockCount));
}

TEST_F(ContentProviderLoadTest, MayBeDestroyedInTheMiddleWithoutTheStorage)
{
    for (auto const delay : {0us, 500us, 3000us, 10'000us, 30'000us}) {
        CollectionProvider::setItemStorage(&storage);
        ContentProvider const provider;
        std::this_thread::sleep_for(delay);
        CollectionProvider::setItemStorage(nullptr);
    }
    EXPECT_TRUE(storage.waitForAll(60s));
}

TEST_F(ContentProviderLoadTest, MayOutliveTheStorage)
{
    auto shortLived = std::make_unique<ItemStorage>();
    CollectionProvider::setItemStorage(shortLived.get());
    ContentProvider const provider;
    CollectionProvider::setItemStorage(nullptr);
    shortLived.reset();
}

} // namespace
