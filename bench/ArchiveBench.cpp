// The archives, each beside its floor in the same run: the bare parse or the bare tree for JSON, the framework's own
// archives over plain structures of the same fields for the binary form.

#include <malloc.h>

#include <deque>
#include <memory>
#include <sstream>
#include <string>

#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/serialization/array.hpp>
#include <boost/serialization/base_object.hpp>
#include <boost/serialization/deque.hpp>
#include <boost/serialization/export.hpp>
#include <boost/serialization/string.hpp>
#include <boost/serialization/unique_ptr.hpp>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <effects/Base.h>
#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Equalizer.h>
#include <effects/Geometry.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

namespace {

constexpr std::size_t effectCount = 10'000;

using Effects = std::deque<std::unique_ptr<Effect::Object const>>;

/// What every effect has, off its default.
template <class Made> std::unique_ptr<Made> made(std::size_t number)
{
    auto effect = std::make_unique<Made>();
    effect->intensity = 0.001 * static_cast<double>(number);
    effect->resource = Resource::ID("clip-" + QString::number(number), Resource::Type::Blob);
    effect->resourcePath = "media/clip-" + QString::number(number) + ".mp4";
    effect->range = Types::Range(MTime(static_cast<std::int64_t>(number)), MTime(40'000));
    return effect;
}

Types::Transform transform(std::size_t number)
{
    double const shift = 0.0001 * static_cast<double>(number);
    return {0.75, 0.125, -0.125, 0.75, 0.001, 0.002, shift, -shift, 1.5};
}

std::unique_ptr<Effect::Object const> makeEffect(std::size_t number)
{
    double const value = 0.37 + 0.0001 * static_cast<double>(number);
    switch (number % 6) {
    case 0: {
        auto effect = made<Effect::ManualEnhance>(number);
        effect->setGamma(value)->setHighlights(-value)->setShadows(value / 2)->setBrightness(0.1)->setContrast(0.2);
        effect->setSaturation(-0.3)->setHue(0.4)->setTemperature(-0.5)->setTint(0.6);
        return effect;
    }
    case 1: {
        auto effect = made<Effect::WhiteBalance>(number);
        effect->color = static_cast<std::uint32_t>(number);
        return effect;
    }
    case 2: {
        auto effect = made<Effect::Crop>(number);
        effect->transform = transform(number);
        return effect;
    }
    case 3: {
        auto effect = made<Effect::ChromaKey>(number);
        effect->color = static_cast<std::uint32_t>(number);
        effect->hueTolerance = 11;
        effect->noiseLevel = 12;
        effect->harshness = 13;
        effect->transparency = 14;
        return effect;
    }
    case 4: {
        auto effect = made<Effect::SideBySide>(number);
        effect->transformSrc = transform(number);
        effect->transformDst = transform(number + 1);
        return effect;
    }
    default: {
        auto effect = made<Effect::AudioEqualizer>(number);
        *effect = Effect::AudioEqualizer::makePreset(static_cast<Effect::AudioEqualizer::Preset>(3 + number % 20));
        effect->intensity = value;
        effect->presetName = "Preset " + QString::number(number);
        return effect;
    }
    }
}

Effects const & effects()
{
    static Effects const effects = [] {
        Effects made;
        for (std::size_t number = 0; number < effectCount; ++number)
            made.push_back(makeEffect(number));
        return made;
    }();
    return effects;
}

// ---- Plain structures of the same fields, for the framework's own archives.

namespace Plain {

struct Object
{
    std::string tag, id, groupId, resourceName, resourcePath;
    double intensity = 0;
    int resourceType = 0;
    bool hasRange = false;
    std::int64_t start = 0, length = 0;

    virtual ~Object() = default;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & tag & id & groupId & intensity & resourceName & resourceType & resourcePath & hasRange;
        if (hasRange)
            archive & start & length;
    }
};

struct VideoEffect : Object
{
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<Object>(*this);
    }
};

struct AudioFilter : Object
{
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<Object>(*this);
    }
};

struct Transform
{
    double m[9];
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        for (double & entry : m)
            archive & entry;
    }
};

struct ManualEnhance : VideoEffect
{
    double gamma, highlights, shadows, brightness, contrast, saturation, hue, temperature, tint;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<VideoEffect>(*this) &
            gamma & highlights & shadows & brightness & contrast & saturation & hue & temperature & tint;
    }
};

struct WhiteBalance : VideoEffect
{
    std::uint32_t color;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<VideoEffect>(*this) & color;
    }
};

struct Crop : VideoEffect
{
    Transform transform;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<VideoEffect>(*this) & transform;
    }
};

struct ChromaKey : VideoEffect
{
    std::uint32_t color;
    int hueTolerance, noiseLevel, harshness, transparency;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<VideoEffect>(*this) &
            color & hueTolerance & noiseLevel & harshness & transparency;
    }
};

struct SideBySide : VideoEffect
{
    Transform transformSrc, transformDst;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<VideoEffect>(*this) & transformSrc & transformDst;
    }
};

struct Band
{
    int centralFrequency;
    double gain;
    template <class Archive> void serialize(Archive & archive, unsigned) { archive & centralFrequency & gain; }
};

struct AudioEqualizer : AudioFilter
{
    std::deque<Band> multiband;
    int preset;
    std::string presetName;
    template <class Archive> void serialize(Archive & archive, unsigned)
    {
        archive & boost::serialization::base_object<AudioFilter>(*this) & multiband & preset & presetName;
    }
};

using Objects = std::deque<std::unique_ptr<Object>>;

template <class Made> std::unique_ptr<Made> of(Effect::Object const & effect)
{
    auto plain = std::make_unique<Made>();
    plain->tag = effect.tag.toStdString();
    plain->id = effect.id.toStdString();
    plain->groupId = effect.groupId.toStdString();
    plain->intensity = effect.intensity;
    plain->resourceName = effect.resource.name().toStdString();
    plain->resourceType = static_cast<int>(effect.resource.type());
    plain->resourcePath = effect.resourcePath.toStdString();
    plain->hasRange = effect.range.has_value();
    if (effect.range) {
        plain->start = effect.range->start().units();
        plain->length = effect.range->length().units();
    }
    return plain;
}

Transform of(Types::Transform const & transform)
{
    Transform plain;
    for (std::size_t index = 0; index < 9; ++index)
        plain.m[index] = transform[index];
    return plain;
}

std::unique_ptr<Object> copyOf(Effect::Object const & object)
{
    if (auto const * const effect = dynamic_cast<Effect::ManualEnhance const *>(&object)) {
        auto plain = of<ManualEnhance>(object);
        plain->gamma = effect->gamma;
        plain->highlights = effect->highlights;
        plain->shadows = effect->shadows;
        plain->brightness = effect->brightness;
        plain->contrast = effect->contrast;
        plain->saturation = effect->saturation;
        plain->hue = effect->hue;
        plain->temperature = effect->temperature;
        plain->tint = effect->tint;
        return plain;
    }
    if (auto const * const effect = dynamic_cast<Effect::WhiteBalance const *>(&object)) {
        auto plain = of<WhiteBalance>(object);
        plain->color = effect->color;
        return plain;
    }
    if (auto const * const effect = dynamic_cast<Effect::Crop const *>(&object)) {
        auto plain = of<Crop>(object);
        plain->transform = of(effect->transform);
        return plain;
    }
    if (auto const * const effect = dynamic_cast<Effect::ChromaKey const *>(&object)) {
        auto plain = of<ChromaKey>(object);
        plain->color = effect->color;
        plain->hueTolerance = effect->hueTolerance;
        plain->noiseLevel = effect->noiseLevel;
        plain->harshness = effect->harshness;
        plain->transparency = effect->transparency;
        return plain;
    }
    if (auto const * const effect = dynamic_cast<Effect::SideBySide const *>(&object)) {
        auto plain = of<SideBySide>(object);
        plain->transformSrc = of(effect->transformSrc);
        plain->transformDst = of(effect->transformDst);
        return plain;
    }
    auto const & effect = dynamic_cast<Effect::AudioEqualizer const &>(object);
    auto plain = of<AudioEqualizer>(object);
    for (auto const & band : effect.multiband)
        plain->multiband.push_back({band.centralFrequency, band.gain});
    plain->preset = static_cast<int>(effect.preset);
    plain->presetName = effect.presetName.toStdString();
    return plain;
}

Objects const & objects()
{
    static Objects const objects = [] {
        Objects copies;
        for (auto const & effect : effects())
            copies.push_back(copyOf(*effect));
        return copies;
    }();
    return objects;
}

} // namespace Plain

} // namespace

BOOST_CLASS_EXPORT(Plain::ManualEnhance)
BOOST_CLASS_EXPORT(Plain::WhiteBalance)
BOOST_CLASS_EXPORT(Plain::Crop)
BOOST_CLASS_EXPORT(Plain::ChromaKey)
BOOST_CLASS_EXPORT(Plain::SideBySide)
BOOST_CLASS_EXPORT(Plain::AudioEqualizer)

namespace {

void countEffects(benchmark::State & state)
{
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(effectCount));
}

// ---- JSON

nlohmann::json const & tree()
{
    static nlohmann::json const tree = [] {
        nlohmann::json document;
        Serialize::Json::oarchive archive(document);
        archive << effects();
        return document;
    }();
    return tree;
}

std::string const & text()
{
    static std::string const text = tree().dump();
    return text;
}

void jsonLoad(benchmark::State & state)
{
    text();
    for (auto _ : state) {
        nlohmann::json const document = Serialize::Json::parse(text());
        Serialize::Json::iarchive archive(document);
        std::deque<std::unique_ptr<Effect::Object>> loaded;
        archive >> loaded;
        benchmark::DoNotOptimize(loaded);
    }
    countEffects(state);
}
BENCHMARK(jsonLoad)->Unit(benchmark::kMillisecond);

void jsonLoadFloorBareParse(benchmark::State & state)
{
    text();
    for (auto _ : state) {
        nlohmann::json const document = nlohmann::json::parse(text());
        benchmark::DoNotOptimize(&document);
    }
    countEffects(state);
}
BENCHMARK(jsonLoadFloorBareParse)->Unit(benchmark::kMillisecond);

void jsonSave(benchmark::State & state)
{
    effects();
    for (auto _ : state) {
        nlohmann::json document;
        Serialize::Json::oarchive archive(document);
        archive << effects();
        benchmark::DoNotOptimize(document.dump());
    }
    countEffects(state);
}
BENCHMARK(jsonSave)->Unit(benchmark::kMillisecond);

/// Builds the tree key by key, as code written for it would.
void build(nlohmann::json const & pattern, nlohmann::json & built)
{
    switch (pattern.type()) {
    case nlohmann::json::value_t::object:
        built = nlohmann::json::object();
        for (auto const & [key, value] : pattern.get_ref<nlohmann::json::object_t const &>())
            build(value, built[key]);
        break;
    case nlohmann::json::value_t::array:
        built = nlohmann::json::array();
        for (nlohmann::json const & value : pattern)
            build(value, built.emplace_back());
        break;
    default:
        built = pattern;
    }
}

void jsonSaveFloorTreeByHand(benchmark::State & state)
{
    tree();
    for (auto _ : state) {
        nlohmann::json document;
        build(tree(), document);
        benchmark::DoNotOptimize(document.dump());
    }
    countEffects(state);
}
BENCHMARK(jsonSaveFloorTreeByHand)->Unit(benchmark::kMillisecond);

// ---- Binary

template <class Archive, class Objects> std::string saved(Objects const & objects)
{
    std::stringbuf buffer(std::ios::out | std::ios::binary);
    {
        Archive archive(buffer);
        archive << objects;
    }
    return buffer.str();
}

template <class Archive, class Objects> void binarySave(benchmark::State & state, Objects const & objects)
{
    for (auto _ : state) {
        std::stringbuf buffer(std::ios::out | std::ios::binary);
        Archive archive(buffer);
        archive << objects;
        benchmark::DoNotOptimize(&buffer);
    }
    countEffects(state);
}

template <class Archive, class Objects> void binaryLoad(benchmark::State & state, std::string const & bytes)
{
    for (auto _ : state) {
        std::stringbuf buffer(bytes, std::ios::in | std::ios::binary);
        Archive archive(buffer);
        Objects loaded;
        archive >> loaded;
        benchmark::DoNotOptimize(loaded);
    }
    countEffects(state);
}

void binarySaveOurs(benchmark::State & state)
{
    binarySave<Serialize::BinaryOArchive>(state, effects());
}
BENCHMARK(binarySaveOurs)->Unit(benchmark::kMillisecond);

void binarySaveFloorFramework(benchmark::State & state)
{
    binarySave<boost::archive::binary_oarchive>(state, Plain::objects());
}
BENCHMARK(binarySaveFloorFramework)->Unit(benchmark::kMillisecond);

void binaryLoadOurs(benchmark::State & state)
{
    static std::string const bytes = saved<Serialize::BinaryOArchive>(effects());
    binaryLoad<Serialize::BinaryIArchive, std::deque<std::unique_ptr<Effect::Object>>>(state, bytes);
    state.counters["bytes"] = static_cast<double>(bytes.size()) / effectCount;
}
BENCHMARK(binaryLoadOurs)->Unit(benchmark::kMillisecond);

void binaryLoadFloorFramework(benchmark::State & state)
{
    static std::string const bytes = saved<boost::archive::binary_oarchive>(Plain::objects());
    binaryLoad<boost::archive::binary_iarchive, Plain::Objects>(state, bytes);
    state.counters["bytes"] = static_cast<double>(bytes.size()) / effectCount;
}
BENCHMARK(binaryLoadFloorFramework)->Unit(benchmark::kMillisecond);

// ---- Heap of one loaded effect: bytes that the allocator has handed out, its own rounding included

template <class Make> void heap(benchmark::State & state, Make const & make)
{
    std::size_t bytes = 0;
    for (auto _ : state) {
        std::size_t const before = mallinfo2().uordblks;
        auto const objects = make();
        bytes = mallinfo2().uordblks - before;
        benchmark::DoNotOptimize(&objects);
    }
    state.counters["bytesPerEffect"] = static_cast<double>(bytes) / effectCount;
}

void heapOurs(benchmark::State & state)
{
    static std::string const bytes = saved<Serialize::BinaryOArchive>(effects());
    heap(state, [] {
        std::stringbuf buffer(bytes, std::ios::in | std::ios::binary);
        Serialize::BinaryIArchive archive(buffer);
        std::deque<std::unique_ptr<Effect::Object>> loaded;
        archive >> loaded;
        return loaded;
    });
}
BENCHMARK(heapOurs)->Unit(benchmark::kMillisecond);

void heapFloorPlainStructures(benchmark::State & state)
{
    heap(state, [] {
        Plain::Objects copies;
        for (auto const & effect : effects())
            copies.push_back(Plain::copyOf(*effect));
        return copies;
    });
}
BENCHMARK(heapFloorPlainStructures)->Unit(benchmark::kMillisecond);

} // namespace
