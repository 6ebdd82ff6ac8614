// The Python module, called by an interpreter in this process. Loading has the load of C++ as its floor, setting and
// getting a parameter an attribute of a plain class of Python with slots.

// Before Qt, whose macros take names that Python uses.
#include <pybind11/embed.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

#include <EditorModel/EffectArchive.h>
#include <effects/Holder.h>

#include <benchmark/benchmark.h>

#include "VariedEffects.h"

namespace {

namespace py = pybind11;

constexpr std::size_t effectCount = 10'000;
constexpr int loopCount = 1'000;

/// What the benchmarks call, in an interpreter that lasts until the end of the program.
py::object named(char const * name)
{
    static py::scoped_interpreter const interpreter;
    static py::dict const globals = [] {
        py::module_::import("sys").attr("path").attr("insert")(0, EDITOREFFECTS_PYTHON_PATH);
        py::dict scope;
        py::exec(R"(
import editoreffects

class Plain:
    __slots__ = ("intensity",)

plain = Plain()
effect = editoreffects.create("Effect::Blur")
loaded = editoreffects.from_binary(effect.to_binary())
load = editoreffects.load
plain.intensity = 0.5

def set_parameter(target, count):
    for _ in range(count):
        target.intensity = 0.5

def get_parameter(target, count):
    for _ in range(count):
        target.intensity
)",
            scope);
        return scope;
    }();
    return globals[name];
}

Effect::EffectsHolder const & holder()
{
    static Effect::EffectsHolder instance;
    if (instance.effects.empty())
        for (auto & effect : makeVariedEffects(effectCount))
            instance.addEffect(std::move(effect));
    return instance;
}

std::string const & json()
{
    static std::string const text = Effect::Archive::toJson(holder());
    return text;
}

std::string const & binary()
{
    static std::string const bytes = Effect::Archive::toBinary(holder());
    return bytes;
}

void count(benchmark::State & state, std::size_t items)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(items));
}

// ---- 10,000 effects from one holder

void load(benchmark::State & state, std::string const & content)
{
    py::object const function = named("load");
    py::bytes const bytes(content);
    for (auto _ : state) {
        py::object const effect = function(bytes);
        benchmark::DoNotOptimize(effect.ptr());
    }
    count(state, effectCount);
}

template <class Read> void loadFloor(benchmark::State & state, std::string const & content, Read const & read)
{
    for (auto _ : state) {
        std::unique_ptr<Effect::Object> const effect = read(content);
        benchmark::DoNotOptimize(effect.get());
    }
    count(state, effectCount);
}

void pythonLoadJson(benchmark::State & state)
{
    load(state, json());
}
BENCHMARK(pythonLoadJson)->Unit(benchmark::kMillisecond);

void pythonLoadJsonFloorCpp(benchmark::State & state)
{
    loadFloor(state, json(), Effect::Archive::fromJson);
}
BENCHMARK(pythonLoadJsonFloorCpp)->Unit(benchmark::kMillisecond);

void pythonLoadBinary(benchmark::State & state)
{
    load(state, binary());
}
BENCHMARK(pythonLoadBinary)->Unit(benchmark::kMillisecond);

void pythonLoadBinaryFloorCpp(benchmark::State & state)
{
    loadFloor(state, binary(), Effect::Archive::fromBinary);
}
BENCHMARK(pythonLoadBinaryFloorCpp)->Unit(benchmark::kMillisecond);

// ---- One parameter: the loop around it is that of Python in the floor as well

void loop(benchmark::State & state, char const * function, char const * target)
{
    py::object const call = named(function);
    py::object const object = named(target);
    for (auto _ : state)
        call(object, loopCount);
    count(state, loopCount);
}

BENCHMARK_CAPTURE(loop, pythonSet, "set_parameter", "effect")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loop, pythonSetOfLoaded, "set_parameter", "loaded")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loop, pythonSetFloorSlots, "set_parameter", "plain")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loop, pythonGet, "get_parameter", "effect")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(loop, pythonGetFloorSlots, "get_parameter", "plain")->Unit(benchmark::kMicrosecond);

} // namespace
