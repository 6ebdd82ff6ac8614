#include <collection/Effects/ContentProvider.h>

#include <utility>

#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/UserBlob.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/CategoriesConfig.h>
#include <EditorUtil/CollectionHolder.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <FileSystem/FileSystem.h>
#include <utils/CollectionNames.h>
#include <utils/EffectUtils.h>

namespace Effect {

using EditorCollection::CategoriesConfig;
using EditorCollection::CollectionHolder;
using EditorCollection::ICollection;
using EditorCollection::IItem;

namespace {

// Archive names: the folders of the user's effects are called after them.
constexpr char const * manualEnhanceClass = "Effect::ManualEnhance";
constexpr char const * lutClass = "Effect::Lut";

void handOver(ICollection & collection, serialize_ptr<IItem> && item)
{
    item.storage.releaseAll();
    std::unique_ptr<IItem> owned = std::move(item.pointer);
    collection.addItem(std::move(owned)); // a rejected item is destroyed with `owned`
}

/// Creates those categories of the item that the collection does not have yet.
void addMissingCategories(ICollection & collection, IItem const & item)
{
    for (QString const & category : item.categories())
        if (!collection.hasCategory(category))
            collection.addCategory(category, CategoriesConfig::thematicCategoryInfo(&collection));
}

/// The files that the effect and the effects in it refer to.
void registerResources(Object const & effect)
{
    Utils::registerEffectResource(effect);
    if (auto const * const holder = dynamic_cast<EffectsHolder const *>(&effect))
        for (auto const & held : holder->effects)
            if (held)
                registerResources(*held);
}

void markAsUsers(IItem & item)
{
    item.setUserFlagA(true);
    item.setUserFlagB(true);
}

/// The LUT file that a user's effect refers to.
void loadUserBlob(Object const & effect)
{
    UserBlob::loadBlob(FS::joinPath({Settings::userBlobsPath(), effect.resource.name()}, {}));
}

// Item callbacks. They run on the storage's threads, possibly during the constructor or the destructor. They
// therefore use only the holder, whose collections are thread-safe and which drops its loads before it is destroyed.

void addStockItem(CollectionHolder const & holder, QString const & collectionName, serialize_ptr<IItem> && item)
{
    registerResources(item->payload());
    ICollection & collection = *holder.collection(collectionName);
    addMissingCategories(collection, *item);
    handOver(collection, std::move(item));
}

void addUserColorFilter(CollectionHolder const & holder, serialize_ptr<IItem> && item)
{
    markAsUsers(*item);
    handOver(*holder.collection(CollectionNames::colorFilters), std::move(item));
}

void addUserLut(CollectionHolder const & holder, serialize_ptr<IItem> && item)
{
    if (Object const & effect = item->payload(); effect.id == Id::Lut)
        loadUserBlob(effect);
    markAsUsers(*item);
    if (QString const category = CategoriesConfig::userCategory(CollectionNames::luts); !category.isEmpty())
        item->addCategory(category);
    handOver(*holder.collection(CollectionNames::luts), std::move(item));
}

} // namespace

class ContentProvider::Impl final : private CollectionHolder
{
public:
    Impl();

private:
    void loadCollectionAsync(QString const & name, QString const & path);

    Factory::SettingsFactory m_factory;
};

// Loads are started, and so delivered, in this order.
ContentProvider::Impl::Impl()
{
    CollectionHolder const & holder = *this;
    loadCollectionAsync(CollectionNames::effects, Settings::stockVideoEffectsPath());
    loadCollectionAsync(CollectionNames::overlayEffects, Settings::stockOverlayEffectsPath());
    loadCollectionAsync(CollectionNames::effectsAudio, Settings::stockAudioEffectsPath());
    loadCollectionAsync(CollectionNames::audioEnhance, Settings::stockAudioEnhancePath());
    loadCollectionAsync(CollectionNames::colorFilters, Settings::stockColorFiltersPath());
    loadItems(Settings::userEffectsPath(manualEnhanceClass), CollectionNames::colorFilters,
        [&holder](serialize_ptr<IItem> && item) { addUserColorFilter(holder, std::move(item)); });
    loadCollectionAsync(CollectionNames::luts, Settings::stockLutEffectsPath());
    loadItems(Settings::userEffectsPath(lutClass), CollectionNames::luts,
        [&holder](serialize_ptr<IItem> && item) { addUserLut(holder, std::move(item)); });
    // The user's shaders have no items of their own here: the host adds them.
    loadCollectionAsync(CollectionNames::shaderEffects, QString());
    loadCollectionAsync(CollectionNames::pipEffects, Settings::stockPipEffectsPath());
    loadCollectionAsync(CollectionNames::masks, Settings::stockMasksPath());
}

/// @param path  of the stock items; with an empty one the collection stays empty
void ContentProvider::Impl::loadCollectionAsync(QString const & name, QString const & path)
{
    registerCollection(name);
    if (path.isEmpty())
        return;
    CollectionHolder const & holder = *this;
    loadItems(
        path, name, [&holder, name](serialize_ptr<IItem> && item) { addStockItem(holder, name, std::move(item)); });
}

ContentProvider::ContentProvider()
    : m_impl(std::make_unique<Impl>())
{}

ContentProvider::~ContentProvider() = default;

} // namespace Effect
