#include <EditorUtil/CategoriesConfig.h>

#include <map>
#include <mutex>
#include <shared_mutex>

namespace EditorCollection {

namespace {

struct UserCategories
{
    std::shared_mutex mutex;
    std::map<QString, QString> byCollection{{QStringLiteral("Luts"), QStringLiteral("category_user")}};
};

UserCategories & userCategories()
{
    static UserCategories categories;
    return categories;
}

} // namespace

CategoryInfo CategoriesConfig::thematicCategoryInfo(ICollection const * collection)
{
    return {CategoryInfo::Kind::Thematic, static_cast<int>(collection->categories().size())};
}

QString CategoriesConfig::userCategory(QString const & collectionName)
{
    std::shared_lock const lock(userCategories().mutex);
    auto const found = userCategories().byCollection.find(collectionName);
    return found == userCategories().byCollection.end() ? QString() : found->second;
}

void CategoriesConfig::setUserCategory(QString const & collectionName, QString const & category)
{
    std::unique_lock const lock(userCategories().mutex);
    userCategories().byCollection[collectionName] = category;
}

} // namespace EditorCollection
