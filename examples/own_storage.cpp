// A host that brings its own item storage: items come out of its database, not from folders.

#include <EditorModel/CollectionProvider.h>
#include <EditorUtil/Item.h>
#include <effects/Effects.h>

#include <iostream>

namespace {

/// Delivers at once, on the calling thread, which is a choice that a storage may make.
class Database final : public EditorCollection::IItemStorage
{
public:
    void loadItems(QString const &, QString const & collectionName, EditorCollection::ItemCallback callback) override
    {
        if (collectionName != "ColorFilters")
            return;
        for (double const hue : {-0.25, 0.25}) {
            auto effect = std::make_unique<Effect::ManualEnhance>();
            effect->setHue(hue);
            callback(EditorCollection::makeItem(std::move(effect), {"category_color_filters"}));
        }
    }
};

} // namespace

int main()
{
    Database database;
    EditorCollection::CollectionProvider::setItemStorage(&database);
    {
        Effect::ContentProvider const provider;
        auto const * const filters = EditorCollection::CollectionProvider::collection("ColorFilters");
        for (auto const * const item : filters->items())
            std::cout << dynamic_cast<Effect::ManualEnhance const &>(item->payload()).hue
                      << (item->userFlagA() ? " by the user\n" : " from the stock\n");
    }
    EditorCollection::CollectionProvider::setItemStorage(nullptr);
}
