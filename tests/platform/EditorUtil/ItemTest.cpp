#include <EditorUtil/Item.h>

#include <memory>
#include <utility>

#include "../EditorModel/TestEffect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace EditorCollection;
using testing::ElementsAre;

std::unique_ptr<Effect::Object> effectWithTag(QString const & tag)
{
    auto effect = std::make_unique<Sample::Effect>();
    effect->tag = tag;
    return effect;
}

// That nothing is deleted twice or never is for the address sanitizer to see; here is who owns what.

TEST(Item, PayloadBelongsToTheStorageUntilReleased)
{
    auto made = makeItem(effectWithTag("a"));
    EXPECT_EQ(made.storage.size(), 1U);
    EXPECT_EQ(made->payload().tag, "a");

    made.storage.releaseAll();
    EXPECT_EQ(made.storage.size(), 0U);
    std::unique_ptr<IItem> const item = std::move(made.pointer);
    made = {};
    EXPECT_EQ(item->payload().tag, "a");
}

TEST(Item, MayBeDroppedWithItsStorage)
{
    auto made = makeItem(effectWithTag("a"));
    auto other = std::move(made);
    EXPECT_EQ(other->payload().tag, "a");
    other = makeItem(effectWithTag("b"));
    EXPECT_EQ(other->payload().tag, "b");
}

TEST(Item, MayBeReleasedTwice)
{
    auto made = makeItem(effectWithTag("a"));
    made.storage.releaseAll();
    made.storage.releaseAll();
    EXPECT_EQ(made->payload().tag, "a");
}

TEST(Item, FilesUnderCategoriesInOrder)
{
    auto const item = makeItem(effectWithTag("a"), {"m", "z"});
    item->addCategory("b");
    item->addCategory("z");
    EXPECT_THAT(item->categories(), ElementsAre("b", "m", "z"));
}

TEST(Item, KnowsItsFile)
{
    EXPECT_EQ(makeItem(effectWithTag("a"), {}, "/items/w\xE4rm.effect.json")->file(), "/items/w\xE4rm.effect.json");
    EXPECT_EQ(makeItem(effectWithTag("a"))->file(), "");
}

TEST(Item, BelongsToTheUserWhenToldSo)
{
    auto const item = makeItem(effectWithTag("a"));
    EXPECT_FALSE(item->userFlagA());
    EXPECT_FALSE(item->userFlagB());
    item->setUserFlagA(true);
    EXPECT_TRUE(item->userFlagA());
    EXPECT_FALSE(item->userFlagB());
    item->setUserFlagB(true);
    item->setUserFlagA(false);
    EXPECT_FALSE(item->userFlagA());
    EXPECT_TRUE(item->userFlagB());
}

} // namespace
