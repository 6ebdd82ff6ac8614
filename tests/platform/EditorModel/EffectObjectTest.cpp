#include "TestEffect.h"

#include <utility>

#include <gtest/gtest.h>

namespace {

using EditorCollection::Payload;

TEST(EffectObject, Defaults)
{
    Sample::Effect const effect;
    EXPECT_EQ(effect.id, "the-id");
    EXPECT_EQ(effect.groupId, "the-group");
    EXPECT_EQ(effect.tag, "");
    EXPECT_FALSE(effect.tag.isNull());
    EXPECT_EQ(effect.intensity, 1.0);
    EXPECT_EQ(effect.resource, Resource::ID());
    EXPECT_EQ(effect.resourcePath, "");
    EXPECT_FALSE(effect.resourcePath.isNull());
    EXPECT_FALSE(effect.range);
}

TEST(EffectObject, AnswersOfTheBase)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_FALSE(effect.isTwoInput());
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_EQ(effect.processingSettingsId(), "the-id");
    EXPECT_EQ(effect.downloadResourceType(), Payload::DownloadResourceType::None);
    EXPECT_EQ(effect.mimeType(), "application/x-editor-effect");
    EXPECT_EQ(&effect.mimeType(), &Sample::Effect().mimeType());
}

TEST(EffectObject, IsFoundByItsKindAndWhatSetsItApart)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    EXPECT_EQ(effect.generateItemFindingId(), "the-id:the-tag");
    EXPECT_EQ(effect.generateLegacyItemFindingId(), "the-tag");
    effect.resource = Resource::ID("paper", Resource::Type::Image);
    EXPECT_EQ(effect.generateItemFindingId(), "the-id:paper");
    EXPECT_EQ(effect.generateLegacyItemFindingId(), "the-tag");
}

TEST(EffectObject, IsAValue)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    effect.intensity = 0.5;
    effect.resource = Resource::ID("paper", Resource::Type::Image);
    effect.resourcePath = "/paper.png";
    effect.range = Types::Range(MTime(1), MTime(2));

    Sample::Effect copy = effect;
    EXPECT_EQ(copy.id, "the-id");
    EXPECT_EQ(copy.groupId, "the-group");
    EXPECT_EQ(copy.tag, "the-tag");
    EXPECT_EQ(copy.intensity, 0.5);
    EXPECT_EQ(copy.resource, effect.resource);
    EXPECT_EQ(copy.resourcePath, "/paper.png");
    EXPECT_EQ(copy.range, effect.range);

    Sample::Effect moved;
    moved = std::move(copy);
    EXPECT_EQ(moved.tag, "the-tag");
    EXPECT_EQ(moved.range, effect.range);
}

} // namespace
