#include <EditorUtil/CollectionHolder.h>

#include <algorithm>
#include <mutex>
#include <shared_mutex>
#include <utility>

#include <EditorModel/CollectionProvider.h>

#include <QHash>

namespace EditorCollection {

namespace {

class Collection final : public ICollection
{
public:
    explicit Collection(QString name)
        : m_name(std::move(name))
    {}

    void addItem(std::unique_ptr<IItem> && item) override
    {
        if (!item)
            return;
        std::unique_lock const lock(m_mutex);
        QString const & tag = item->payload().tag;
        if (!m_byTag.contains(tag))
            m_byTag.insert(tag, item.get());
        m_items.push_back(std::move(item));
    }

    IItem const * itemByTag(QString const & tag) const override
    {
        std::shared_lock const lock(m_mutex);
        return m_byTag.value(tag);
    }

    void addCategory(QString const & name, CategoryInfo const & info) override
    {
        std::unique_lock const lock(m_mutex);
        if (findCategory(name) == m_categories.end())
            m_categories.push_back({name, info});
    }

    bool hasCategory(QString const & name) const override
    {
        std::shared_lock const lock(m_mutex);
        return findCategory(name) != m_categories.end();
    }

    QString const & name() const override { return m_name; }

    std::vector<IItem const *> items() const override
    {
        std::shared_lock const lock(m_mutex);
        std::vector<IItem const *> items(m_items.size());
        std::transform(m_items.begin(), m_items.end(), items.begin(), [](auto const & item) { return item.get(); });
        return items;
    }

    std::vector<Category> categories() const override
    {
        std::shared_lock const lock(m_mutex);
        return m_categories;
    }

private:
    // A collection has a dozen categories: a search in order is as fast as any.
    std::vector<Category>::const_iterator findCategory(QString const & name) const
    {
        return std::find_if(
            m_categories.begin(), m_categories.end(), [&](Category const & category) { return category.name == name; });
    }

    QString const m_name;
    mutable std::shared_mutex m_mutex;
    std::vector<std::unique_ptr<IItem>> m_items;
    QHash<QString, IItem const *> m_byTag;
    std::vector<Category> m_categories;
};

} // namespace

struct CollectionHolder::State
{
    std::shared_mutex mutex;
    std::vector<std::unique_ptr<Collection>> collections;
    ItemLoads loads;

    ICollection * find(QString const & name) const
    {
        auto const found = std::find_if(collections.begin(), collections.end(),
            [&](auto const & collection) { return collection->name() == name; });
        return found == collections.end() ? nullptr : found->get();
    }
};

CollectionHolder::CollectionHolder()
    : m_state(std::make_unique<State>())
{}

CollectionHolder::~CollectionHolder()
{
    dropLoads();
    for (auto const & collection : m_state->collections)
        CollectionProvider::unregisterCollection(*collection);
}

void CollectionHolder::registerCollection(QString const & name)
{
    std::unique_lock const lock(m_state->mutex);
    if (m_state->find(name))
        return;
    m_state->collections.push_back(std::make_unique<Collection>(name));
    CollectionProvider::registerCollection(*m_state->collections.back());
}

ICollection * CollectionHolder::collection(QString const & name) const
{
    std::shared_lock const lock(m_state->mutex);
    return m_state->find(name);
}

void CollectionHolder::loadItems(QString const & path, QString const & collectionName, ItemCallback callback)
{
    m_state->loads.load(CollectionProvider::itemStorage(), path, collectionName, std::move(callback));
}

void CollectionHolder::dropLoads()
{
    m_state->loads.drop();
}

} // namespace EditorCollection
