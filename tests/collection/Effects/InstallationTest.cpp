// Which factory the model library asks when there is more than one.

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

#include <collection/Effects/ContentProvider.h>
#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Base.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/Geometry.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <support/Items.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using EditorCollection::CollectionProvider;
using EditorCollection::ICollection;
using testing::IsEmpty;
using testing::SizeIs;

/// A factory of the host, which records its calls.
class HostFactory final : public Factory::IFactory
{
    Factory::EffectSettings createVideoEffectSettings(
        Object const & effect, Factory::VideoParams const & params) override
    {
        return record(7, effect, params.duration);
    }
    Factory::EffectSettings createAudioEffectSettings(
        Object const & effect, Factory::AudioParams const & params) override
    {
        return record(8, effect, params.sampleRate);
    }

    static Factory::EffectSettings record(std::uint8_t code, Object const & effect, std::int64_t number)
    {
        Factory::EffectSettings record;
        record.stageCode = code;
        record.implementation = effect.id.toStdString() + ' ' + std::to_string(number);
        return record;
    }
};

void expectTheLibrarys()
{
    auto const record = Factory::videoEffectSettings(AutoContrast(), {});
    EXPECT_THAT(record.settings, SizeIs(1));
    EXPECT_EQ(record.stageCode, 19);
}

void expectNone()
{
    EXPECT_EQ(Factory::factory(), nullptr);
    EXPECT_THROW(Factory::videoEffectSettings(AutoContrast(), {}), std::logic_error);
    EXPECT_THROW(Factory::audioEffectSettings(AudioMonoChannel(), {}), std::logic_error);
}

TEST(Installation, AHostsOwnFactoryIsAskedForEverything)
{
    HostFactory host;
    Factory::setFactory(&host);
    auto const video = Factory::videoEffectSettings(AutoContrast(), {{}, 5});
    EXPECT_EQ(video.stageCode, 7);
    EXPECT_EQ(video.implementation, "fe49dfef-2cc8-4a94-976e-6dce9a0d3e55 5");
    // Descriptors and effects of the other kind too: what to refuse is the factory's affair.
    EXPECT_EQ(Factory::videoEffectSettings(EffectDescriptor(), {}).implementation, " 0");
    auto const audio = Factory::audioEffectSettings(AutoContrast(), {44100});
    EXPECT_EQ(audio.stageCode, 8);
    EXPECT_EQ(audio.implementation, "fe49dfef-2cc8-4a94-976e-6dce9a0d3e55 44100");
    Factory::setFactory(nullptr);
    expectNone();
}

TEST(Installation, TheLastOneMadeIsAsked)
{
    HostFactory host;
    Factory::setFactory(&host);
    {
        Factory::SettingsFactory const librarys;
        EXPECT_EQ(Factory::factory(), &librarys);
        expectTheLibrarys();
        // A host may put its own back at any time.
        Factory::setFactory(&host);
        EXPECT_EQ(Factory::videoEffectSettings(AutoContrast(), {}).stageCode, 7);
    }
    // Whichever was installed, none is when a factory of the library went.
    expectNone();
}

TEST(Installation, OfTwoOfTheLibrarysTheLaterOneIsAsked)
{
    std::optional<Factory::SettingsFactory> first(std::in_place);
    std::optional<Factory::SettingsFactory> second(std::in_place);
    EXPECT_EQ(Factory::factory(), &*second);
    second.reset();
    expectNone();
    Factory::setFactory(&*first);
    expectTheLibrarys();
    second.emplace();
    first.reset();
    expectNone();
    Factory::setFactory(&*second);
    expectTheLibrarys();
}

TEST(Installation, AProviderTakesTheFactoryOfAHostAway)
{
    Testing::ManualStorage const storage;
    HostFactory host;
    Factory::setFactory(&host);
    {
        ContentProvider const provider;
        EXPECT_NE(Factory::factory(), &host);
        expectTheLibrarys();
    }
    expectNone();
}

TEST(Installation, TwoProvidersHaveAFactoryEach)
{
    Testing::ManualStorage const storage;
    auto first = std::make_unique<ContentProvider>();
    auto * const factoryOfTheFirst = Factory::factory();
    ASSERT_NE(factoryOfTheFirst, nullptr);
    auto second = std::make_unique<ContentProvider>();
    EXPECT_NE(Factory::factory(), factoryOfTheFirst);
    expectTheLibrarys();
    second.reset();
    expectNone();
    // It is the host's affair to install the one that is left.
    Factory::setFactory(factoryOfTheFirst);
    expectTheLibrarys();
    first.reset();
    expectNone();
}

TEST(Installation, TwoProvidersHaveCollectionsOfTheirOwn)
{
    Testing::ManualStorage const storage;
    auto first = std::make_unique<ContentProvider>();
    std::size_t const loadsOfTheFirst = storage.loads.size();
    ICollection const * const effectsOfTheFirst = CollectionProvider::collection("Effects");
    auto second = std::make_unique<ContentProvider>();
    ASSERT_EQ(storage.loads.size(), 2 * loadsOfTheFirst);
    EXPECT_THAT(CollectionProvider::collections(), SizeIs(18));
    // The later one answers to the name.
    ICollection const * const effectsOfTheSecond = CollectionProvider::collection("Effects");
    ASSERT_NE(effectsOfTheSecond, effectsOfTheFirst);

    // Both are filled, each by its own loads.
    storage.deliver(0, std::make_unique<Crop>());
    storage.deliver(loadsOfTheFirst, std::make_unique<Mask>());
    storage.deliver(loadsOfTheFirst, std::make_unique<Mask>());
    EXPECT_THAT(effectsOfTheFirst->items(), SizeIs(1));
    EXPECT_THAT(effectsOfTheSecond->items(), SizeIs(2));
    EXPECT_EQ(effectsOfTheFirst->items()[0]->payload().id, Id::Crop);
    EXPECT_EQ(effectsOfTheSecond->items()[1]->payload().id, Id::Mask);

    second.reset();
    EXPECT_EQ(CollectionProvider::collection("Effects"), effectsOfTheFirst);
    EXPECT_THAT(effectsOfTheFirst->items(), SizeIs(1));
    first.reset();
    EXPECT_THAT(CollectionProvider::collections(), IsEmpty());
}

TEST(Installation, OfTwoProvidersTheFirstMayGoFirst)
{
    Testing::ManualStorage const storage;
    auto first = std::make_unique<ContentProvider>();
    std::size_t const loadsOfTheFirst = storage.loads.size();
    auto const second = std::make_unique<ContentProvider>();
    auto * const factoryOfTheSecond = Factory::factory();
    ICollection const * const effectsOfTheSecond = CollectionProvider::collection("Effects");
    first.reset();
    EXPECT_THAT(CollectionProvider::collections(), SizeIs(9));
    EXPECT_EQ(CollectionProvider::collection("Effects"), effectsOfTheSecond);
    storage.deliver(loadsOfTheFirst, std::make_unique<Mask>());
    EXPECT_THAT(effectsOfTheSecond->items(), SizeIs(1));
    expectNone();
    Factory::setFactory(factoryOfTheSecond);
    expectTheLibrarys();
}

} // namespace
