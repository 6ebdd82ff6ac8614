#include <inspect/Conversion.h>

#include <EditorModel/EffectFactory.h>
#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Shaders.h>
#include <inspect/Failure.h>

#include <glog/logging.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::ThrowsMessage;

std::unique_ptr<Effect::Overlay> overlayWithout(char const * file)
{
    auto effect = std::make_unique<Effect::Overlay>();
    effect->resource = Resource::ID(file, Resource::Type::Image);
    effect->resourcePath = QString("/nowhere/") + file;
    return effect;
}

TEST(Conversion, AFileThatNoConversionReadsIsMissedAllTheSame)
{
    RenderHost host;
    auto const effect = overlayWithout("a.png");
    Outcome const outcome = outcomeOf(*effect, recordOf(host, *effect, {}));
    EXPECT_EQ(outcome.result, Outcome::Result::Incomplete);
    EXPECT_THAT(outcome.problems, ElementsAre("/nowhere/a.png: no such file"));
}

TEST(Conversion, AFileIsMissedOnce)
{
    RenderHost host;
    Effect::Lut effect;
    Outcome const outcome = outcomeOf(effect, recordOf(host, effect, {}));
    EXPECT_EQ(outcome.result, Outcome::Result::Incomplete);
    EXPECT_THAT(outcome.problems, ElementsAre(HasSubstr("Couldn't load LUT")));
}

TEST(Conversion, WhatAHolderHoldsIsLookedAtAsWell)
{
    RenderHost host;
    Effect::EffectsHolder inner;
    auto holder = std::make_unique<Effect::EffectsHolder>();
    holder->addEffect(std::make_unique<Effect::AutoContrast>());
    holder->addEffect(overlayWithout("b.png"));
    inner.addEffect(nullptr);
    inner.addEffect(std::move(holder));
    Outcome const outcome = outcomeOf(inner, recordOf(host, inner, {}));
    EXPECT_EQ(outcome.result, Outcome::Result::Incomplete);
    EXPECT_EQ(outcome.held, 2U);
    EXPECT_THAT(outcome.problems, ElementsAre("/nowhere/b.png: no such file"));
}

TEST(Conversion, AReportIsMadeWhereItIsAskedFor)
{
    RenderHost host;
    Effect::EffectsHolder holder;
    holder.addEffect(std::make_unique<Effect::Crop>());
    RenderParams params;
    EXPECT_FALSE(recordOf(host, holder, params).contains("report"));
    params.isReported = true;
    auto const record = recordOf(host, holder, params);
    EXPECT_TRUE(record["report"].contains("parameters"));
    EXPECT_TRUE(record["effects"][0]["report"].contains("parameters"));
}

/// Logs, and then fails.
class Failing final : public Effect::Factory::IFactory
{
public:
    Effect::Factory::EffectSettings createVideoEffectSettings(
        Effect::Object const &, Effect::Factory::VideoParams const &) override
    {
        fail();
    }
    Effect::Factory::EffectSettings createAudioEffectSettings(
        Effect::Object const &, Effect::Factory::AudioParams const &) override
    {
        fail();
    }

private:
    [[noreturn]] static void fail()
    {
        LOG(ERROR) << "the first sign";
        throw std::runtime_error("broken down");
    }
};

TEST(Conversion, WhatWasLoggedBeforeAFailureIsKept)
{
    RenderHost host;
    Failing failing;
    auto * const previous = Effect::Factory::factory();
    Effect::Factory::setFactory(&failing);
    EXPECT_THAT([&] { host.convert(Effect::Crop(), {}); }, ThrowsMessage<Failure>("broken down; the first sign"));
    Effect::Factory::setFactory(previous);
}

} // namespace
