// A conversion through the installed factory beside code that makes the same record by hand.

#include <collection/Effects/ContentProvider.h>
#include <ConfInt/ImplNames.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Composition.h>
#include <Settings/SettingsColor.h>
#include <Settings/SettingsComposition.h>

#include <benchmark/benchmark.h>

namespace {

namespace Proc = Quoril::Proc;

/// The library at work, without a catalogue.
class Library
{
public:
    Library()
    {
        EditorCollection::CollectionProvider::setItemStorage(&m_storage);
        m_provider = std::make_unique<Effect::ContentProvider>();
    }
    ~Library()
    {
        m_provider.reset();
        EditorCollection::CollectionProvider::setItemStorage(nullptr);
    }

private:
    EditorCollection::NullItemStorage m_storage;
    std::unique_ptr<Effect::ContentProvider> m_provider;
};

void convertOpacity(benchmark::State & state)
{
    Library const library;
    Effect::Opacity effect;
    effect.setOpacity(0.25);
    for (auto _ : state)
        benchmark::DoNotOptimize(Effect::Factory::videoEffectSettings(effect, {}));
}
BENCHMARK(convertOpacity);

void convertOpacityFloorByHand(benchmark::State & state)
{
    Effect::Opacity effect;
    effect.setOpacity(0.25);
    for (auto _ : state) {
        auto settings = std::make_unique<Proc::SettingsEffectOpacity>();
        settings->opacity = effect.opacity;
        Effect::Factory::EffectSettings record{{}, 18, Proc::ImplNames::DEFAULT};
        record.settings.push_back(std::move(settings));
        benchmark::DoNotOptimize(record);
    }
}
BENCHMARK(convertOpacityFloorByHand);

void convertChromaKey(benchmark::State & state)
{
    Library const library;
    Effect::ChromaKey const effect;
    for (auto _ : state)
        benchmark::DoNotOptimize(Effect::Factory::videoEffectSettings(effect, {}));
}
BENCHMARK(convertChromaKey);

void convertChromaKeyFloorByHand(benchmark::State & state)
{
    Effect::ChromaKey const effect;
    for (auto _ : state) {
        auto settings = std::make_unique<Proc::SettingsEffectChromakey>();
        settings->SetParams(
            effect.hueTolerance, effect.noiseLevel / 256.0, effect.harshness / 100.0, effect.transparency / 100.0);
        settings->red = static_cast<std::uint8_t>(effect.color >> 16);
        settings->green = static_cast<std::uint8_t>(effect.color >> 8);
        settings->blue = static_cast<std::uint8_t>(effect.color);
        Effect::Factory::EffectSettings record{{}, 18, Proc::ImplNames::DEFAULT};
        record.settings.push_back(std::move(settings));
        benchmark::DoNotOptimize(record);
    }
}
BENCHMARK(convertChromaKeyFloorByHand);

} // namespace
