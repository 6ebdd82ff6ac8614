#include <EditorUtil/CategoriesConfig.h>

#include <EditorUtil/CollectionHolder.h>

#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;

TEST(CategoriesConfig, PutsAThemeBehindTheCategoriesThatAreThere)
{
    CollectionHolder holder;
    holder.registerCollection("Samples");
    ICollection * const collection = holder.collection("Samples");
    EXPECT_EQ(CategoriesConfig::thematicCategoryInfo(collection).position, 0);
    EXPECT_EQ(CategoriesConfig::thematicCategoryInfo(collection).kind, CategoryInfo::Kind::Thematic);
    collection->addCategory("a", {CategoryInfo::Kind::User, 0});
    EXPECT_EQ(CategoriesConfig::thematicCategoryInfo(collection).position, 1);
}

TEST(CategoriesConfig, KnowsTheUsersCategories)
{
    EXPECT_EQ(CategoriesConfig::userCategory("Luts"), "category_user");
    EXPECT_EQ(CategoriesConfig::userCategory("ColorFilters"), "");

    CategoriesConfig::setUserCategory("ColorFilters", "category_mine");
    EXPECT_EQ(CategoriesConfig::userCategory("ColorFilters"), "category_mine");
    CategoriesConfig::setUserCategory("ColorFilters", "");
    EXPECT_EQ(CategoriesConfig::userCategory("ColorFilters"), "");
}

} // namespace
