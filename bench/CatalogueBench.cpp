/// @file
/// What it costs to bring the catalogue up, beside the bare parsing of the same files.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemFile.h>
#include <EditorUtil/ItemStorage.h>
#include <effects/ColorCorrection.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using namespace EditorCollection;

/// A stock whose "VideoEffects" are so many items, all of the same text but each a file of its own.
class Stock
{
public:
    explicit Stock(std::int64_t count)
    {
        Effect::ManualEnhance effect;
        effect.setContrast(0.25)->setSaturation(-0.125);
        storeItem(folder(), "first", effect, {"category_adjust"});
        QFile first(folder() + "/first.effect.json");
        if (!first.open(QIODevice::ReadOnly))
            std::abort();
        QByteArray const text = first.readAll();
        first.remove();
        for (std::int64_t number = 0; number < count; ++number) {
            paths.push_back(folder().toStdString() + '/' + std::to_string(number) + std::string(itemFileSuffix));
            QFile file(QString::fromStdString(paths.back()));
            if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
                std::abort();
        }
    }

    QString root() const { return m_root.path(); }
    QString folder() const { return root() + "/VideoEffects"; }

    std::vector<std::string> paths;

private:
    QTemporaryDir m_root;
};

/// Made at the first use, gone at the end.
Stock const & stockOf(std::int64_t count)
{
    static std::map<std::int64_t, std::unique_ptr<Stock>> stocks;
    auto & stock = stocks[count];
    if (!stock)
        stock = std::make_unique<Stock>(count);
    return *stock;
}

/// The floor: one thread reads each file and parses it, and drops the document.
void parseFiles(benchmark::State & state)
{
    Stock const & stock = stockOf(state.range(0));
    std::string text;
    for (auto _ : state) {
        for (std::string const & path : stock.paths) {
            std::FILE * const file = std::fopen(path.c_str(), "rb");
            text.resize(4096);
            text.resize(std::fread(text.data(), 1, text.size(), file));
            std::fclose(file);
            benchmark::DoNotOptimize(nlohmann::json::parse(text));
        }
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(parseFiles)
    ->RangeMultiplier(10)
    ->Range(100, 100'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Complexity(benchmark::oN);

/// From the construction of the provider to the last delivery, out of a storage with so many threads. The host's
/// storage is there before and stays.
void deliver(benchmark::State & state)
{
    Stock const & stock = stockOf(state.range(0));
    Settings::setStockRoot(stock.root());
    Settings::setUserRoot(stock.root() + "/user");
    ItemStorage storage(static_cast<unsigned>(state.range(1)));
    CollectionProvider::setItemStorage(&storage);
    for (auto _ : state) {
        auto provider = std::make_unique<Effect::ContentProvider>();
        storage.waitForAll();
        state.PauseTiming();
        if (CollectionProvider::collection("Effects")->items().size() != stock.paths.size())
            state.SkipWithError("items are missing");
        provider.reset();
        state.ResumeTiming();
    }
    CollectionProvider::setItemStorage(nullptr);
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(deliver)
    ->ArgsProduct({{100, 1'000, 10'000, 100'000}, {1}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Complexity(benchmark::oN);
BENCHMARK(deliver)
    ->ArgsProduct({{100, 1'000, 10'000, 100'000}, {2}})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Complexity(benchmark::oN);

/// What the host's thread spends, whatever there is to load.
void startUp(benchmark::State & state)
{
    Stock const & stock = stockOf(state.range(0));
    Settings::setStockRoot(stock.root());
    Settings::setUserRoot(stock.root() + "/user");
    for (auto _ : state) {
        state.PauseTiming();
        auto storage = std::make_unique<ItemStorage>();
        CollectionProvider::setItemStorage(storage.get());
        state.ResumeTiming();
        auto provider = std::make_unique<Effect::ContentProvider>();
        state.PauseTiming();
        provider.reset();
        CollectionProvider::setItemStorage(nullptr);
        storage.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(startUp)->Arg(100)->Arg(100'000)->Unit(benchmark::kMicrosecond)->UseRealTime();

} // namespace
