#include <functional>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/StreamSerializer.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <support/Documents.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using nlohmann::json;
using Testing::ownKeys;
using Testing::readKeys;

Types::Transform const quarter(0.25, 0, 0, 0.25, 0, 0, 0, 0, 1);
Types::Transform const shifted(1, 0, 0, 1, 0, 0, 0.125, -0.125, 1);

TEST(Frame, DefaultHasHalfThePicturesSize)
{
    Frame const frame;
    EXPECT_EQ(frame.shape, Frame::Shape{0});
    EXPECT_TRUE(frame.transform == Types::Transform(0.5, 0, 0, 0.5, 0, 0, 0, 0, 1));
    EXPECT_FALSE(frame.outline);
    EXPECT_EQ(frame.trackingId, "");
    EXPECT_FALSE(frame.trackingId.isNull());
    EXPECT_TRUE(frame.trackingTransform == Types::Transform());
    EXPECT_EQ(frame.GetNameInArchive(), "Effect::Frame");
}

TEST(FrameHighlight, SettersStoreAndChain)
{
    FrameHighlight frame;
    EXPECT_EQ(frame.setShape(Frame::Shape::Ellipse)->setOutline(true)->setTrackingId("ball"), &frame);
    EXPECT_EQ(frame.setTrackingTransform(shifted)->setTranform(quarter), &frame);
    EXPECT_EQ(frame.shape, Frame::Shape::Ellipse);
    EXPECT_TRUE(frame.outline);
    EXPECT_EQ(frame.trackingId, "ball");
    EXPECT_TRUE(frame.trackingTransform == shifted);
    EXPECT_TRUE(frame.transform == quarter);
}

TEST(FrameConceal, Defaults)
{
    FrameConceal const frame;
    EXPECT_EQ(frame.method, FrameConceal::Method{2});
    EXPECT_EQ(frame.opacity, 1.0);
    EXPECT_EQ(frame.smoothness, 0.0);
    EXPECT_EQ(frame.pixelSize, 0.1);
}

TEST(FrameConceal, SettersStoreAndChain)
{
    FrameConceal frame;
    EXPECT_EQ(frame.setShape(Frame::Shape::Ellipse)->setOutline(true)->setTrackingId("face"), &frame);
    EXPECT_EQ(frame.setTrackingTransform(shifted)->setTranform(quarter), &frame);
    EXPECT_EQ(frame.setMethod(FrameConceal::Method::Blur)->setOpacity(-1)->setSmoothness(7)->setPixelSize(8), &frame);
    EXPECT_EQ(frame.shape, Frame::Shape::Ellipse);
    EXPECT_TRUE(frame.outline);
    EXPECT_EQ(frame.trackingId, "face");
    EXPECT_TRUE(frame.trackingTransform == shifted);
    EXPECT_TRUE(frame.transform == quarter);
    EXPECT_EQ(frame.method, FrameConceal::Method::Blur);
    EXPECT_EQ(frame.opacity, -1);
    EXPECT_EQ(frame.smoothness, 7);
    EXPECT_EQ(frame.pixelSize, 8);
}

// A change of one field, and whether it makes the frame another one.
template <class Class> struct Change
{
    char const * what;
    std::function<void(Class &)> apply;
    bool matters;
};

template <class Class> void expectComparison(std::vector<Change<Class>> const & changes)
{
    Class const plain;
    EXPECT_TRUE(plain == plain);
    EXPECT_TRUE(plain == Class());
    for (auto const & change : changes) {
        SCOPED_TRACE(change.what);
        Class changed;
        change.apply(changed);
        EXPECT_EQ(plain != changed, change.matters);
        EXPECT_EQ(changed == plain, !change.matters);
    }
}

TEST(FrameHighlight, ComparesWhatIsSeen)
{
    expectComparison<FrameHighlight>({
        {"shape", [](auto & frame) { frame.setShape(Frame::Shape::Ellipse); }, true},
        {"transform", [](auto & frame) { frame.setTranform(quarter); }, true},
        {"transform, by less than a trillionth", [](auto & frame) { frame.transform[6] = 1e-12; }, false},
        {"outline", [](auto & frame) { frame.setOutline(true); }, true},
        {"trackingId", [](auto & frame) { frame.setTrackingId("ball"); }, false},
        {"trackingTransform", [](auto & frame) { frame.setTrackingTransform(quarter); }, false},
    });
}

TEST(FrameConceal, ComparesWhatIsSeenButThePixelSize)
{
    expectComparison<FrameConceal>({
        {"method", [](auto & frame) { frame.setMethod(FrameConceal::Method::Fill); }, true},
        {"shape", [](auto & frame) { frame.setShape(Frame::Shape::Ellipse); }, true},
        {"transform", [](auto & frame) { frame.setTranform(quarter); }, true},
        {"outline", [](auto & frame) { frame.setOutline(true); }, true},
        {"opacity", [](auto & frame) { frame.setOpacity(0.99); }, true},
        {"opacity, by less than a trillionth", [](auto & frame) { frame.setOpacity(1 + 5e-13); }, false},
        {"smoothness", [](auto & frame) { frame.setSmoothness(2e-12); }, true},
        {"smoothness, by a trillionth", [](auto & frame) { frame.setSmoothness(1e-12); }, false},
        {"pixelSize", [](auto & frame) { frame.setPixelSize(0.7); }, false},
        {"trackingId", [](auto & frame) { frame.setTrackingId("face"); }, false},
        {"trackingTransform", [](auto & frame) { frame.setTrackingTransform(quarter); }, false},
    });
}

TEST(FrameConceal, AFrameEqualsItselfWhateverItHolds)
{
    FrameConceal frame;
    frame.setOpacity(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(frame == frame);
    EXPECT_FALSE(frame == FrameConceal(frame));
}

TEST(Mask, Defaults)
{
    Mask const effect;
    EXPECT_EQ(effect.id, Id::Mask);
    EXPECT_EQ(effect.groupId, Id::Mask);
    EXPECT_EQ(effect.tag, "effect_mask");
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_FALSE(effect.isTwoInput());
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"backgroundFill": 0, "backgroundOpacity": 0.5,
        "backgroundSmoothness": 0, "highlightFrames": [], "concealFrames": []})"));
}

TEST(Mask, SettersStoreAndChain)
{
    Mask effect;
    EXPECT_EQ(effect.setBackgroundFill(Mask::BackgroundFill::Blur)->setBackgroundOpacity(2)->setBackgroundSmoothness(3),
        &effect);
    EXPECT_EQ(effect.backgroundFill, Mask::BackgroundFill::Blur);
    EXPECT_EQ(effect.backgroundOpacity, 2);
    EXPECT_EQ(effect.backgroundSmoothness, 3);

    FrameHighlight highlight;
    highlight.setTrackingId("first");
    EXPECT_EQ(effect.addFrame(highlight)->addFrame(FrameConceal())->addFrame(FrameHighlight()), &effect);
    ASSERT_EQ(effect.highlightFrames.size(), 2U);
    EXPECT_EQ(effect.highlightFrames[0].trackingId, "first");
    EXPECT_EQ(effect.concealFrames.size(), 1U);

    EXPECT_EQ(effect.clearHighlightFrames(), &effect);
    EXPECT_TRUE(effect.highlightFrames.empty());
    EXPECT_EQ(effect.concealFrames.size(), 1U);
    EXPECT_EQ(effect.addFrame(highlight)->clearConcealFrames(), &effect);
    EXPECT_TRUE(effect.concealFrames.empty());
    EXPECT_EQ(effect.highlightFrames.size(), 1U);
}

TEST(Mask, CopiesHaveTheirOwnFrames)
{
    Mask effect;
    effect.addFrame(FrameHighlight())->addFrame(FrameConceal());
    Mask copy = effect;
    copy.highlightFrames[0].setOutline(true);
    copy.concealFrames[0].setOpacity(0.25);
    EXPECT_FALSE(effect.highlightFrames[0].outline);
    EXPECT_EQ(effect.concealFrames[0].opacity, 1.0);

    Mask const moved = std::move(copy);
    EXPECT_TRUE(moved.highlightFrames[0].outline);
    EXPECT_EQ(moved.concealFrames[0].opacity, 0.25);
}

/// A mask none of whose fields is at its default.
Mask fullMask()
{
    FrameHighlight highlight;
    highlight.setShape(Frame::Shape::Ellipse)->setOutline(true)->setTrackingId("ball");
    highlight.setTrackingTransform(shifted)->setTranform(quarter);
    FrameConceal conceal;
    conceal.setTrackingId(QString::fromUtf8("Gesicht \u00e4"))->setTrackingTransform(quarter)->setTranform(shifted);
    conceal.setMethod(FrameConceal::Method::Blur)->setOpacity(0.75)->setSmoothness(0.5)->setPixelSize(0.25);
    Mask effect;
    effect.setBackgroundFill(Mask::BackgroundFill::Blur)->setBackgroundOpacity(0.25)->setBackgroundSmoothness(0.125);
    effect.addFrame(highlight)->addFrame(conceal)->addFrame(FrameConceal());
    return effect;
}

TEST(Mask, Keys)
{
    EXPECT_EQ(ownKeys(fullMask()), json::parse(R"({
        "backgroundFill": 1, "backgroundOpacity": 0.25, "backgroundSmoothness": 0.125,
        "highlightFrames": [{
            "$meta": {"class": "Effect::FrameHighlight"},
            "Effect::Frame": {
                "$meta": {"class": "Effect::Frame"},
                "shape": 1, "transform": {"m": [0.25, 0, 0, 0, 0.25, 0, 0, 0, 1]}, "outline": true,
                "trackingId": "ball", "trackingTransform": {"m": [1, 0, 0, 0, 1, 0, 0.125, -0.125, 1]}}}],
        "concealFrames": [{
            "$meta": {"class": "Effect::FrameConceal"},
            "Effect::Frame": {
                "$meta": {"class": "Effect::Frame"},
                "shape": 0, "transform": {"m": [1, 0, 0, 0, 1, 0, 0.125, -0.125, 1]}, "outline": false,
                "trackingId": "Gesicht \u00e4", "trackingTransform": {"m": [0.25, 0, 0, 0, 0.25, 0, 0, 0, 1]}},
            "method": 1, "opacity": 0.75, "smoothness": 0.5, "pixelSize": 0.25}, {
            "$meta": {"class": "Effect::FrameConceal"},
            "Effect::Frame": {
                "$meta": {"class": "Effect::Frame"},
                "shape": 0, "transform": {"m": [0.5, 0, 0, 0, 0.5, 0, 0, 0, 1]}, "outline": false,
                "trackingId": "", "trackingTransform": {"m": [1, 0, 0, 0, 1, 0, 0, 0, 1]}},
            "method": 2, "opacity": 1, "smoothness": 0, "pixelSize": 0.1}]})"));
}

TEST(Mask, ReadsBackFromEveryArchive)
{
    Mask const effect = fullMask();
    json const expected = ownKeys(effect);

    EXPECT_EQ(ownKeys(*Archive::fromJson(Archive::toJson(effect))), expected);
    EXPECT_EQ(ownKeys(*Archive::fromBinary(Archive::toBinary(effect))), expected);

    // The frames that the receiving mask has give way to those that are read.
    std::stringbuf stream;
    Serialize::StreamSerializer serializer(stream);
    serializer.write(static_cast<Serialize::ISerializable const &>(effect));
    Mask received;
    received.addFrame(FrameHighlight())->addFrame(FrameHighlight())->addFrame(FrameConceal());
    Serialize::StreamDeserializer deserializer(stream);
    deserializer.read(received);
    EXPECT_EQ(ownKeys(received), expected);
}

TEST(Mask, AbsentKeysLeaveTheDefaults)
{
    auto const effect = readKeys<Mask>(json::parse(R"({"backgroundSmoothness": 3, "concealFrames": [{}]})"));
    EXPECT_EQ(effect->backgroundOpacity, 0.5);
    EXPECT_EQ(effect->backgroundSmoothness, 3);
    EXPECT_TRUE(effect->highlightFrames.empty());
    ASSERT_EQ(effect->concealFrames.size(), 1U);
    EXPECT_TRUE(effect->concealFrames[0] == FrameConceal());
}

TEST(Mask, NumbersBeyondTheKnownOnesAreKept)
{
    auto const effect = readKeys<Mask>(json::parse(R"({"backgroundFill": 7,
        "highlightFrames": [{"Effect::Frame": {"shape": 2}}], "concealFrames": [{"method": 3}]})"));
    EXPECT_EQ(effect->backgroundFill, Mask::BackgroundFill{7});
    EXPECT_EQ(effect->highlightFrames.at(0).shape, Frame::Shape{2});
    EXPECT_EQ(effect->concealFrames.at(0).method, FrameConceal::Method{3});
}

TEST(Mask, AFrameMayBeAReferenceToAnother)
{
    auto const effect = readKeys<Mask>(json::parse(R"({"concealFrames": [
        {"$meta": {"class": "Effect::FrameConceal", "id": 4}, "pixelSize": 0.5}, {"$meta": {"ref": 4}}]})"));
    ASSERT_EQ(effect->concealFrames.size(), 2U);
    EXPECT_EQ(effect->concealFrames[1].pixelSize, 0.5);
    EXPECT_THROW(readKeys<Mask>(json::parse(R"({"highlightFrames": [{"$meta": {"ref": 4}}]})")), std::out_of_range);
}

} // namespace
