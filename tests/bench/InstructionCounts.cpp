// The work that is counted, one case a run: InstructionCounts CASE. Callgrind counts what happens in `counted`.

#include <cstring>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <collection/Effects/ContentProvider.h>
#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectFactory.h>
#include <EditorSerialization/Registry.h>
#include <effects/Composition.h>

#include "../../bench/VariedEffects.h"

/// Found by this name.
extern "C" __attribute__((noinline, visibility("default"))) void counted(std::function<void()> const & work)
{
    work();
}

namespace {

using Effects = std::vector<std::unique_ptr<Effect::Object>>;

constexpr std::size_t count = 1'000;

/// Does the work twice and counts the second time: the first one fills caches and tables.
template <class Work> void measure(Work const & work)
{
    work();
    counted(work);
}

template <class Write, class Read> void measureRead(Effects const & effects, Write const & write, Read const & read)
{
    std::vector<std::string> archives;
    for (auto const & effect : effects)
        archives.push_back(write(*effect));
    Effects made(count);
    measure([&] {
        for (std::size_t index = 0; index < count; ++index) {
            made[index].release(); // destruction is not counted, nor is it missed in a program as short as this
            made[index] = read(archives[index]);
        }
    });
}

template <class Write> void measureWrite(Effects const & effects, Write const & write)
{
    std::vector<std::string> archives(count);
    measure([&] {
        for (std::size_t index = 0; index < count; ++index)
            archives[index] = write(*effects[index]);
    });
}

void create()
{
    std::vector<std::unique_ptr<Serialize::ISerializable>> made(count);
    measure([&] {
        for (auto & effect : made)
            effect = Serialize::Registry::create("Effect::ChromaKey");
    });
}

void copy()
{
    Effect::ChromaKey const effect;
    std::vector<Effect::ChromaKey> copies;
    copies.reserve(2 * count);
    measure([&] {
        for (std::size_t index = 0; index < count; ++index)
            copies.push_back(effect);
    });
}

void convert(Effects const & effects)
{
    EditorCollection::NullItemStorage storage;
    EditorCollection::CollectionProvider::setItemStorage(&storage);
    {
        Effect::ContentProvider const provider;
        Effect::ChromaKey const effect;
        measure([&] {
            for (std::size_t index = 0; index < effects.size(); ++index)
                Effect::Factory::videoEffectSettings(effect, {});
        });
    }
    EditorCollection::CollectionProvider::setItemStorage(nullptr);
}

} // namespace

int main(int argumentCount, char ** arguments)
{
    using namespace Effect::Archive;
    Effects const effects = makeVariedEffects(count);
    std::map<std::string, std::function<void()>> const cases{
        {"json-read", [&] { measureRead(effects, toJson, fromJson); }},
        {"json-write", [&] { measureWrite(effects, toJson); }},
        {"binary-read", [&] { measureRead(effects, toBinary, fromBinary); }},
        {"binary-write", [&] { measureWrite(effects, toBinary); }},
        {"create", create},
        {"copy", copy},
        {"convert", [&] { convert(effects); }},
    };
    auto const found = argumentCount == 2 ? cases.find(arguments[1]) : cases.end();
    if (found == cases.end()) {
        std::cerr << "usage: InstructionCounts CASE, one of";
        for (auto const & [name, work] : cases)
            std::cerr << ' ' << name;
        std::cerr << '\n';
        return 2;
    }
    found->second();
    return 0;
}
