#include <limits>

#include <EditorModel/EffectArchive.h>
#include <effects/Composition.h>
#include <effects/Identity.h>
#include <support/Documents.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using nlohmann::json;
using Testing::ownKeys;
using Testing::readKeys;
using Mode = ColorBlendingBase::Mode;

// What identifies a class, and what its operations answer.
struct Row
{
    VideoEffect const & effect;
    QString id, groupId, tag, defaultTag;
    bool hasIntensity, isTwoInput;
};

TEST(Composition, Classes)
{
    PictureInPicture const pictureInPicture;
    SideBySide const sideBySide;
    Opacity const opacity;
    ChromaKey const chromaKey;
    Overlay const overlay;
    ColorBlending const colorBlending;
    AlphaInserter const alphaInserter;
    QString const pip = Group::GroupPip;
    Row const rows[] = {
        {pictureInPicture, Id::PictureInPicture, pip, "effect_picture_in_picture", Tags::tagPIP, false, false},
        {sideBySide, Id::SideBySide, pip, "effect_side_by_side", Tags::tagSideBySide, false, false},
        {opacity, Id::Opacity, Id::Opacity, "effect_opacity", "", false, false},
        {chromaKey, Id::ChromaKey, Id::ChromaKey, "effect_chroma_key", "", false, false},
        {overlay, Id::Overlay, Id::Overlay, Tags::tagOverlay, "", true, false},
        {colorBlending, Id::ColorBlending, Id::ColorBlending, "effect_color_blending", "", false, true},
        {alphaInserter, Id::AlphaInserter, Id::AlphaInserter, "", "", false, true},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.effect.GetNameInArchive());
        EXPECT_EQ(row.effect.id, row.id);
        EXPECT_EQ(row.effect.groupId, row.groupId);
        EXPECT_EQ(row.effect.tag, row.tag);
        EXPECT_EQ(row.effect.defaultTag(), row.defaultTag);
        EXPECT_EQ(row.effect.hasIntensity(), row.hasIntensity);
        EXPECT_EQ(row.effect.isTwoInput(), row.isTwoInput);
        EXPECT_EQ(row.effect.intensity, 1.0);
        EXPECT_EQ(row.effect.type(), Type::Video);
        EXPECT_EQ(row.effect.impl(), Impl::Effect);
    }
}

TEST(PictureInPicture, SetterStoresAndChains)
{
    PictureInPicture effect;
    EXPECT_TRUE(effect.transform == Types::Transform());
    Types::Transform const corner(0.25, 0, 0, 0.25, 0, 0, -0.375, -0.375, 1);
    EXPECT_EQ(effect.setTransform(corner), &effect);
    EXPECT_TRUE(effect.transform == corner);
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"transform": {"m": [0.25, 0, 0, 0, 0.25, 0, -0.375, -0.375, 1]}})"));
}

TEST(SideBySide, DefaultIsTheMiddleHalfOnTheLeft)
{
    EXPECT_EQ(ownKeys(SideBySide()), json::parse(R"({"transformSrc": {"m": [0.5, 0, 0, 0, 1, 0, 0, 0, 1]},
                                                     "transformDst": {"m": [0.5, 0, 0, 0, 1, 0, -0.25, 0, 1]}})"));
}

TEST(SideBySide, SettersStoreAndChain)
{
    SideBySide effect;
    Types::Transform const source(1, 0, 0, 1, 0, 0, 0.5, 0, 1);
    Types::Transform const target(1, 0, 0, 1, 0, 0, 0, 0.5, 1);
    EXPECT_EQ(effect.setTransformSrc(source)->setTransformDst(target), &effect);
    EXPECT_TRUE(effect.transformSrc == source);
    EXPECT_TRUE(effect.transformDst == target);
    auto const read = readKeys<SideBySide>(ownKeys(effect));
    EXPECT_TRUE(read->transformSrc == source);
    EXPECT_TRUE(read->transformDst == target);
}

TEST(Opacity, DefaultIsOpaqueAndValuesAreNotClamped)
{
    Opacity effect;
    EXPECT_EQ(effect.opacity, 1.0);
    EXPECT_EQ(effect.setOpacity(0)->setOpacity(-2.5), &effect);
    EXPECT_EQ(effect.opacity, -2.5);
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"opacity": -2.5})"));
}

TEST(ChromaKey, Keys)
{
    ChromaKey effect;
    // 0xFF00C800.
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"color": 4278241280, "hueTolerance": 80, "noiseLevel": 0,
                                               "harshness": 1, "transparency": 10})"));
    auto const read = readKeys<ChromaKey>(json::parse(
        R"({"color": 4294967295, "hueTolerance": -1, "noiseLevel": 300, "harshness": 101, "transparency": -2147483648})"));
    EXPECT_EQ(read->color, 0xFFFFFFFFU);
    EXPECT_EQ(read->hueTolerance, -1);
    EXPECT_EQ(read->noiseLevel, 300);
    EXPECT_EQ(read->harshness, 101);
    EXPECT_EQ(read->transparency, std::numeric_limits<int>::min());
}

TEST(ColorBlending, ModesAndTheirKeys)
{
    EXPECT_EQ(ColorBlendingBase("id", "group").mode, Mode{5});
    EXPECT_EQ(ColorBlendingBase("id", "group").groupId, "group");
    EXPECT_EQ(ownKeys(Overlay()), json::parse(R"({"mode": 0})"));
    EXPECT_EQ(ownKeys(ColorBlending()), json::parse(R"({"mode": 5})"));
    EXPECT_EQ(readKeys<Overlay>({{"mode", 13}})->mode, Mode{13});
    EXPECT_EQ(readKeys<ColorBlending>({{"mode", 99}})->mode, Mode{99});
}

TEST(ColorBlending, StandsInDocumentsRightAboveTheVideoEffect)
{
    json const document = json::parse(Archive::toJson(ColorBlending()));
    EXPECT_TRUE(document.contains("Effect::VideoEffect"));
    EXPECT_TRUE(document["Effect::VideoEffect"].contains("Effect::Object"));
    EXPECT_FALSE(document.contains("Effect::ColorBlendingBase"));
}

TEST(Overlay, ResourceAndGroupStayInStep)
{
    Overlay effect;
    Resource::ID const picture("paper", Resource::Type::Image);
    EXPECT_EQ(effect.setResourceID(picture), &effect);
    EXPECT_EQ(effect.resource, picture);
    EXPECT_EQ(effect.groupId, "paper");
    EXPECT_EQ(effect.id, Id::Overlay);
}

TEST(AlphaInserter, HasNoKeys)
{
    EXPECT_EQ(ownKeys(AlphaInserter()), json::object());
}

} // namespace
