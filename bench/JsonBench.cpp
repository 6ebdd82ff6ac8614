// Effects from JSON texts and back, beside the bare parsers and the bare `dump` of the same texts in the same run. Each
// effect is a text of its own; what is made stays until the clock has been stopped, so destruction is not counted.

#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <effects/Holder.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>
#include <simdjson.h>

#include "VariedEffects.h"

namespace {

using Effects = std::vector<std::unique_ptr<Effect::Object>>;

constexpr std::size_t most = 100'000;

Effects const & effects()
{
    static Effects const effects = makeVariedEffects(most);
    return effects;
}

std::vector<std::string> const & texts()
{
    static std::vector<std::string> const texts = [] {
        std::vector<std::string> written;
        for (auto const & effect : effects())
            written.push_back(Effect::Archive::toJson(*effect));
        return written;
    }();
    return texts;
}

/// Calls `make` for each of the first numbers and keeps what it returns. A tree takes ten times the memory of an
/// effect, so that at most `kept` are kept at a time.
template <class Make> void measure(benchmark::State & state, Make const & make, std::size_t kept = most)
{
    using Clock = std::chrono::steady_clock;
    auto const count = static_cast<std::size_t>(state.range(0));
    std::size_t bytes = 0;
    for (std::size_t index = 0; index < count; ++index)
        bytes += texts()[index].size();
    using Made = decltype(make(std::size_t()));
    for (auto _ : state) {
        Clock::duration spent{};
        for (std::size_t start = 0; start < count; start += kept) {
            std::size_t const end = std::min(count, start + kept);
            std::vector<Made> made;
            made.reserve(end - start);
            auto const begin = Clock::now();
            for (std::size_t index = start; index < end; ++index)
                made.push_back(make(index));
            spent += Clock::now() - begin;
        }
        state.SetIterationTime(std::chrono::duration<double>(spent).count());
    }
    auto const each = static_cast<double>(count);
    state.counters["each"] = benchmark::Counter(
        each * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.counters["bytesEach"] = static_cast<double>(bytes) / each;
}

#define EFFECTS_BENCHMARK(name) BENCHMARK(name)->Arg(1'000)->Arg(10'000)->Arg(100'000)->UseManualTime()

void load(benchmark::State & state)
{
    measure(state, [](std::size_t index) { return Effect::Archive::fromJson(texts()[index]); });
}
EFFECTS_BENCHMARK(load);

void loadFloorNlohmannParse(benchmark::State & state)
{
    measure(
        state, [](std::size_t index) { return nlohmann::json::parse(texts()[index]); }, 1'000);
}
EFFECTS_BENCHMARK(loadFloorNlohmannParse);

void loadFloorSimdjsonDom(benchmark::State & state)
{
    std::vector<simdjson::padded_string> padded;
    for (std::string const & text : texts())
        padded.emplace_back(text);
    simdjson::dom::parser parser;
    measure(state, [&](std::size_t index) { return parser.parse(padded[index]).error(); });
}
EFFECTS_BENCHMARK(loadFloorSimdjsonDom);

void save(benchmark::State & state)
{
    effects();
    measure(state, [](std::size_t index) { return Effect::Archive::toJson(*effects()[index]); });
}
EFFECTS_BENCHMARK(save);

void saveFloorNlohmannCopyAndDump(benchmark::State & state)
{
    // The trees of all would not fit into the memory of a small machine.
    static std::vector<nlohmann::json> const trees = [] {
        std::vector<nlohmann::json> parsed;
        for (std::size_t index = 0; index < 1'000; ++index)
            parsed.push_back(nlohmann::json::parse(texts()[index]));
        return parsed;
    }();
    measure(state, [](std::size_t index) {
        nlohmann::json const copy = trees[index % trees.size()];
        return copy.dump();
    });
}
EFFECTS_BENCHMARK(saveFloorNlohmannCopyAndDump);

// ---- All in one document: a holder of effects

Effect::EffectsHolder const & holder(std::size_t count)
{
    static std::vector<std::unique_ptr<Effect::EffectsHolder>> holders;
    for (auto const & known : holders)
        if (known->effects.size() == count)
            return *known;
    holders.push_back(std::make_unique<Effect::EffectsHolder>());
    for (auto & effect : makeVariedEffects(count))
        holders.back()->addEffect(std::move(effect));
    return *holders.back();
}

std::string const & holderText(std::size_t count)
{
    static std::vector<std::pair<std::size_t, std::string>> texts;
    for (auto const & [size, text] : texts)
        if (size == count)
            return text;
    return texts.emplace_back(count, Effect::Archive::toJson(holder(count))).second;
}

template <class Make> void measureHolder(benchmark::State & state, Make const & make)
{
    using Clock = std::chrono::steady_clock;
    auto const count = static_cast<std::size_t>(state.range(0));
    std::string const text = holderText(count);
    for (auto _ : state) {
        auto const begin = Clock::now();
        auto const made = make(count, text);
        auto const spent = Clock::now() - begin;
        benchmark::DoNotOptimize(&made);
        state.SetIterationTime(std::chrono::duration<double>(spent).count());
    }
    state.counters["each"] = benchmark::Counter(static_cast<double>(count) * static_cast<double>(state.iterations()),
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void holderLoad(benchmark::State & state)
{
    measureHolder(state, [](std::size_t, std::string const & text) { return Effect::Archive::fromJson(text); });
}
EFFECTS_BENCHMARK(holderLoad);

void holderLoadFloorNlohmannParse(benchmark::State & state)
{
    measureHolder(state, [](std::size_t, std::string const & text) { return nlohmann::json::parse(text); });
}
EFFECTS_BENCHMARK(holderLoadFloorNlohmannParse);

void holderSave(benchmark::State & state)
{
    measureHolder(state, [](std::size_t count, std::string const &) { return Effect::Archive::toJson(holder(count)); });
}
EFFECTS_BENCHMARK(holderSave);

} // namespace
