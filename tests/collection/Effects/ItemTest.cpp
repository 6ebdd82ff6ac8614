// Items of this library's effects are read without a tree, unless their text has what only a tree can resolve. Both
// ways lead to the same item.

#include <string>

#include <EditorModel/EffectArchive.h>
#include <EditorUtil/ItemFile.h>
#include <effects/Composition.h>
#include <effects/Holder.h>
#include <effects/Shaders.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using EditorCollection::parseItem;
using testing::ElementsAre;

/// A number makes an object one that could be referred to, which only a tree can resolve.
std::string withNumber(std::string text)
{
    std::string const head = R"({"class":"Effect::EffectsHolder")";
    text.replace(text.find(head), head.size(), head + R"(,"id":1)");
    return text;
}

std::string holder()
{
    Effect::EffectsHolder inner;
    auto lut = std::make_unique<Effect::Lut>();
    lut->resourcePath = QStringLiteral("deep/../warm.cube");
    auto absolute = std::make_unique<Effect::Lut>();
    absolute->resourcePath = QStringLiteral("/elsewhere/cold.cube");
    auto nested = std::make_unique<Effect::EffectsHolder>();
    nested->resourcePath = QStringLiteral("nested.png");
    nested->addEffect(std::move(lut))->addEffect(nullptr)->addEffect(std::move(absolute));
    inner.addEffect(std::move(nested));
    inner.resourcePath = QStringLiteral("./outer.png");
    return Effect::Archive::toJson(inner);
}

TEST(EffectItem, ResourcePathsOfHeldEffectsAreRelativeToTheFolder)
{
    std::string const text = R"({"categories":["b","\ufeffa","b"],"other":[1,{}],"effect":)" + holder() + "}";
    for (std::string const & either : {text, withNumber(text)}) {
        auto const item = parseItem(either, "/folder");
        EXPECT_THAT(item->categories(), ElementsAre("b", QString(QChar(0xFEFF)) + "a"));
        auto const & outer = dynamic_cast<Effect::EffectsHolder const &>(item->payload());
        EXPECT_EQ(outer.resourcePath, "/folder/outer.png");
        auto const & nested = dynamic_cast<Effect::EffectsHolder const &>(*outer.effects.front());
        EXPECT_EQ(nested.resourcePath, "/folder/nested.png");
        EXPECT_EQ(nested.effects[0]->resourcePath, "/folder/warm.cube");
        EXPECT_EQ(nested.effects[1], nullptr);
        EXPECT_EQ(nested.effects[2]->resourcePath, "/elsewhere/cold.cube");
    }
}

TEST(EffectItem, TheLastOfTwoEqualKeysCounts)
{
    std::string const blur = Effect::Archive::toJson(Effect::Opacity());
    auto const item =
        parseItem(R"({"effect":null,"categories":["a"],"effect":)" + blur + R"(,"categories":["b"]})", "/folder");
    EXPECT_NE(dynamic_cast<Effect::Opacity const *>(&item->payload()), nullptr);
    EXPECT_THAT(item->categories(), ElementsAre("b"));
    EXPECT_ANY_THROW(parseItem(R"({"effect":)" + blur + R"(,"effect":null})", "/folder"));
}

} // namespace
