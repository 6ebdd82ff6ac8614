/// @file
/// What a parser costs beside reading its numbers.
#include <charconv>
#include <cstdio>
#include <random>
#include <string>

#include <benchmark/benchmark.h>

#include <ParserLUT/ParserLUTFactory.h>

namespace {

constexpr int side = 65;
constexpr std::size_t numbers = std::size_t(3) * side * side * side;

/// A cube with the six decimals that writers usually give.
std::string const & CubeText()
{
    static std::string const text = [] {
        std::string made = "TITLE \"Noise\"\nLUT_3D_SIZE " + std::to_string(side) + "\n";
        std::mt19937 random(1);
        for (std::size_t i = 0; i < numbers; ++i) {
            char word[16];
            std::snprintf(
                word, sizeof word, "0.%06u%c", static_cast<unsigned>(random() % 1'000'000), i % 3 == 2 ? '\n' : ' ');
            made += word;
        }
        return made;
    }();
    return text;
}

/// The floor: the same numbers one by one, without lines, checks or a place to go.
void FromChars(benchmark::State & state)
{
    auto const & text = CubeText();
    std::size_t const start = text.size() - numbers * std::string_view("0.123456 ").size();
    for (auto _ : state) {
        float sum = 0;
        char const * const end = text.data() + text.size();
        for (char const * at = text.data() + start; at < end; ++at) {
            float value = 0;
            at = std::from_chars(at, end, value).ptr;
            sum += value;
        }
        benchmark::DoNotOptimize(sum);
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers));
}
BENCHMARK(FromChars)->Unit(benchmark::kMillisecond);

void ParseCube65(benchmark::State & state)
{
    auto const & text = CubeText();
    for (auto _ : state) {
        auto const table = Quoril::Proc::LUT::ParserLUTFactory::GetParser(text)->Parse(text);
        benchmark::DoNotOptimize(table->entries.data());
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(numbers));
}
BENCHMARK(ParseCube65)->Unit(benchmark::kMillisecond);

} // namespace
