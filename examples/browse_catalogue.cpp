// Brings the stock catalogue up and browses it by category.

#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/Effects.h>

#include <iostream>
#include <map>

#include <QFileInfo>

int main(int argc, char ** argv)
{
    if (argc > 2) {
        std::cerr << "usage: browse_catalogue [STOCK_FOLDER]\n";
        return 2;
    }
    if (argc > 1)
        Settings::setStockRoot(QFile::decodeName(argv[1]));
    // A folder that is missing is no error to the storage: it has no items.
    if (!QFileInfo(Settings::stockLutEffectsPath()).isDir()) {
        std::cerr << Settings::stockLutEffectsPath().toStdString() << ": no such folder\n";
        return 1;
    }
    EditorCollection::ItemStorage storage;
    EditorCollection::CollectionProvider::setItemStorage(&storage);
    {
        Effect::ContentProvider const provider; // returns at once: items arrive over time
        storage.waitForAll();
        auto const * const luts = EditorCollection::CollectionProvider::collection("Luts");
        std::map<QString, int> counts;
        for (auto const * const item : luts->items())
            for (QString const & category : item->categories())
                ++counts[category];
        for (auto const & [category, count] : counts)
            std::cout << category.toStdString() << ": " << count << " items\n";
    }
    EditorCollection::CollectionProvider::setItemStorage(nullptr);
}
