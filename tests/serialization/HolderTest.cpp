#include <deque>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Chain.h"

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Error.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Registry.h>
#include <EditorSerialization/StreamSerializer.h>
#include <effects/ColorCorrection.h>
#include <effects/Equalizer.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Modulation.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using nlohmann::json;
using Serialize::ISerializable;
using Testing::chain;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::unique_ptr<AudioReverb> reverb(std::int64_t delay)
{
    auto effect = std::make_unique<AudioReverb>();
    effect->delay = delay;
    return effect;
}

std::int64_t delay(Object const & effect)
{
    return dynamic_cast<AudioReverb const &>(effect).delay;
}

/// A holder of two effects with an empty slot between.
template <class Holder = EffectsHolder> std::unique_ptr<Holder> withEmptySlot()
{
    auto holder = std::make_unique<Holder>();
    holder->addEffect(reverb(1))->addEffect(nullptr)->addEffect(reverb(3));
    return holder;
}

void expectEmptySlot(Object const & effect)
{
    auto const & effects = dynamic_cast<EffectsHolder const &>(effect).effects;
    ASSERT_EQ(effects.size(), 3U);
    ASSERT_NE(effects[0], nullptr);
    EXPECT_EQ(delay(*effects[0]), 1);
    EXPECT_EQ(effects[1], nullptr);
    ASSERT_NE(effects[2], nullptr);
    EXPECT_EQ(delay(*effects[2]), 3);
}

std::string toStream(Object const & effect)
{
    std::stringbuf buffer;
    Serialize::StreamSerializer(buffer).write(&effect);
    return buffer.str();
}

std::unique_ptr<Object> fromStream(std::string const & bytes)
{
    std::stringbuf buffer(bytes);
    std::unique_ptr<ISerializable> holder;
    Serialize::StreamDeserializer(buffer).read(holder);
    return std::unique_ptr<Object>(&dynamic_cast<Object &>(*holder.release()));
}

template <class Action> std::string errorOf(Action const & action)
{
    try {
        action();
    } catch (std::exception const & error) {
        return error.what();
    }
    return "no error";
}

std::string deepJson(int depth)
{
    json document;
    for (; depth > 0; --depth) {
        json holder{{"$meta", {{"class", "Effect::EffectsHolder"}}}, {"effects", json::array()}};
        if (!document.is_null())
            holder["effects"].push_back(std::move(document));
        document = std::move(holder);
    }
    return document.dump();
}

std::string deepBinary(int depth)
{
    // A holder ends in the number of its effects (8 bytes) and their version (4 bytes), so a further level goes behind
    // all others. What its bytes are follows from the last two levels: the numbers of its objects go on in steps. The
    // header, whose checksum would be another one, is left out.
    constexpr std::size_t header = 20;
    std::string bytes = Archive::toBinary(*chain(depth - 1)).substr(header);
    std::size_t const level = Archive::toBinary(*chain(3)).size() - Archive::toBinary(*chain(2)).size();
    std::size_t const count = bytes.size() - 12;
    bytes[count] = 1;
    for (std::size_t i = 0; i < level; ++i)
        bytes.push_back(static_cast<char>(2 * bytes[bytes.size() - level] - bytes[bytes.size() - 2 * level]));
    bytes[count + level] = 0;
    return bytes;
}

std::string deepStream(int depth)
{
    std::string const whole = toStream(*chain(1));
    std::string const head = whole.substr(0, 6);
    std::string const innermost = whole.substr(6);
    std::string const open = innermost.substr(0, innermost.rfind("effects") + 7) +
                             std::string("A\1\0\0\0I\1\0\0\0n\4\0\0\0\0\0\0\0Data", 23);
    std::string document = head;
    for (int level = 1; level < depth; ++level)
        document += open;
    document += innermost;
    for (int level = 1; level < depth; ++level)
        document += "iao";
    return document;
}

// The archives.

/// One way to write an effect and read it back.
struct Form
{
    char const * name;
    std::string (*write)(Object const &);
    std::unique_ptr<Object> (*read)(std::string const &);
    std::string (*deep)(int depth); ///< a chain of holders, put together here and not by the writer
};

void PrintTo(Form const & form, std::ostream * stream)
{
    *stream << form.name;
}

class HolderInArchive : public testing::TestWithParam<Form>
{
protected:
    static std::unique_ptr<Object> roundTrip(Object const & effect)
    {
        return GetParam().read(GetParam().write(effect));
    }
};

TEST_P(HolderInArchive, ComesBackEmpty)
{
    auto const read = roundTrip(EffectsHolder("id", "group", Type::Video));
    auto const & holder = dynamic_cast<EffectsHolder const &>(*read);
    EXPECT_EQ(holder.id, "id");
    EXPECT_EQ(holder.groupId, "group");
    EXPECT_THAT(holder.effects, IsEmpty());
}

TEST_P(HolderInArchive, KeepsEmptySlots)
{
    expectEmptySlot(*roundTrip(*withEmptySlot()));
    auto const read = roundTrip(*withEmptySlot<AudioEnhance>());
    expectEmptySlot(*read);
    EXPECT_EQ(read->GetNameInArchive(), "Effect::AudioEnhance");
    EXPECT_EQ(read->type(), Type::Audio);
}

TEST_P(HolderInArchive, HoldsAnyClassInOrder)
{
    EffectsHolder holder;
    auto enhance = std::make_unique<AudioEnhance>();
    enhance->addEffect(std::make_unique<AudioVibrato>());
    auto equalizer = std::make_unique<AudioEqualizer>(AudioEqualizer::makePreset(AudioEqualizer::Preset{3}));
    holder.addEffect(std::make_unique<WhiteBalance>())->addEffect(std::move(enhance))->addEffect(std::move(equalizer));

    auto const read = roundTrip(holder);
    auto const & effects = dynamic_cast<EffectsHolder const &>(*read).effects;
    ASSERT_EQ(effects.size(), 3U);
    EXPECT_EQ(effects[0]->GetNameInArchive(), "Effect::WhiteBalance");
    auto const & inner = dynamic_cast<AudioEnhance const &>(*effects[1]).effects;
    ASSERT_EQ(inner.size(), 1U);
    EXPECT_EQ(inner[0]->GetNameInArchive(), "Effect::AudioVibrato");
    EXPECT_TRUE(
        dynamic_cast<AudioEqualizer const &>(*effects[2]) == AudioEqualizer::makePreset(AudioEqualizer::Preset{3}));
}

TEST_P(HolderInArchive, NestsToTheLimit)
{
    auto const read = roundTrip(*chain(Serialize::maxObjectDepth));
    int depth = 1;
    auto const * holder = dynamic_cast<EffectsHolder const *>(read.get());
    for (; !holder->effects.empty(); ++depth)
        holder = dynamic_cast<EffectsHolder const *>(holder->effects[0].get());
    EXPECT_EQ(depth, 64);
}

TEST_P(HolderInArchive, IsNotWrittenBeyondTheLimit)
{
    EXPECT_EQ(errorOf([] { GetParam().write(*chain(Serialize::maxObjectDepth + 1)); }),
        "objects are nested more than 64 deep");
}

TEST_P(HolderInArchive, IsNotReadBeyondTheLimit)
{
    EXPECT_NE(GetParam().read(GetParam().deep(Serialize::maxObjectDepth)), nullptr);
    std::string const error = errorOf([] { GetParam().read(GetParam().deep(Serialize::maxObjectDepth + 1)); });
    EXPECT_THAT(error, StartsWith("objects are nested more than 64 deep, "));
    // And where: the text ends in a path or a number of bytes.
    EXPECT_THAT(error, testing::AnyOf(HasSubstr("at /effects/0/effects/0"), HasSubstr("byte ")));
}

INSTANTIATE_TEST_SUITE_P(Forms, HolderInArchive,
    testing::Values(Form{"Json", [](Object const & effect) { return Archive::toJson(effect); },
                        [](std::string const & document) { return Archive::fromJson(document); }, deepJson},
        Form{"Binary", [](Object const & effect) { return Archive::toBinary(effect); },
            [](std::string const & bytes) { return Archive::fromBinary(bytes); }, deepBinary},
        Form{"Stream", toStream, fromStream, deepStream}),
    [](testing::TestParamInfo<Form> const & form) { return form.param.name; });

TEST(HolderInJson, AnEmptySlotIsNull)
{
    json const document = json::parse(Archive::toJson(*withEmptySlot()));
    EXPECT_EQ(document.at("effects").size(), 3U);
    EXPECT_TRUE(document.at("effects").at(1).is_null());
    EXPECT_EQ(json::parse(Archive::toJson(EffectsHolder())).at("effects"), json::array());
}

TEST(HolderInJson, WithoutTheKeyItIsEmpty)
{
    auto const read = Archive::fromJson(R"({"$meta": {"class": "Effect::AudioEnhance"}})");
    EXPECT_THAT(dynamic_cast<AudioEnhance const &>(*read).effects, IsEmpty());
}

TEST(HolderInJson, AnEnhanceNamesTheHolderAsItsBase)
{
    AudioEnhance enhance;
    enhance.addEffect(reverb(1));
    json const document = json::parse(Archive::toJson(enhance));
    EXPECT_EQ(document.size(), 2U);
    json const & base = document.at("Effect::EffectsHolder");
    EXPECT_EQ(base.at("$meta").at("class"), "Effect::EffectsHolder");
    EXPECT_EQ(base.at("effects").at(0).at("$meta").at("class"), "Effect::AudioReverb");
    EXPECT_EQ(base.at("Effect::EffectDescriptor").at("type"), 1);
}

TEST(HolderInJson, WhatIsNoEffectDoesNotBelongThere)
{
    EXPECT_THAT(errorOf([] {
        Archive::fromJson(R"({"$meta": {"class": "Effect::EffectsHolder"},
            "effects": [null, {"$meta": {"class": "Effect::AudioEqualizer::BandEq"}}]})");
    }),
        AllOf(HasSubstr("Effect::AudioEqualizer::BandEq does not belong here"), HasSubstr("at /effects/1")));
}

TEST(HolderInJson, ReadingReplacesWhatWasThere)
{
    EffectsHolder holder;
    holder.addEffect(reverb(1))->addEffect(reverb(2));
    json const document = json::parse(R"({"effects": [null]})");
    Serialize::Json::iarchive archive(document);
    archive >> holder;
    ASSERT_EQ(holder.effects.size(), 1U);
    EXPECT_EQ(holder.effects[0], nullptr);
}

// The polymorphic interfaces.

/// Records the calls and does not descend into objects.
class Recorder final : public Serialize::ISerializer, private Serialize::IValueWriter
{
public:
    std::vector<std::string> calls;

    void write(ISerializable const * object) override
    {
        calls.push_back("pointer to " + (object ? object->GetNameInArchive() : "nothing"));
    }
    void write(ISerializable const & object) override { calls.push_back(object.GetNameInArchive()); }
    IValueWriter & values() override { return *this; }

private:
    void endItem() override { calls.push_back("end item"); }
    void beginItem(std::int32_t number) override { calls.push_back("begin item " + std::to_string(number)); }
    void endArray() override { calls.push_back("end array"); }
    void beginArray(std::int32_t count) override { calls.push_back("begin array " + std::to_string(count)); }
    void name(char const * name) override { calls.push_back(name); }
    void value(QString const & value) override { calls.push_back("= " + value.toStdString()); }
    void value(std::string const & value) override { calls.push_back("= " + value); }
    void value(std::int64_t value) override { calls.push_back("= " + std::to_string(value)); }
    void value(double value) override { calls.push_back("= " + json(value).dump()); }
    void value(std::uint32_t value) override { calls.push_back("= " + std::to_string(value)); }
    void value(std::int32_t value) override { calls.push_back("= " + std::to_string(value)); }
    void value(bool value) override { calls.push_back(value ? "= true" : "= false"); }
};

TEST(HolderOnTheInterfaces, Writes)
{
    Recorder recorder;
    withEmptySlot()->Serialize(recorder);
    EXPECT_THAT(recorder.calls,
        ElementsAre("$base", "$base", "tag", "= ", "id", "= ", "groupId", "= ", "intensity", "= 1.0", "resource",
            "Resource::ID", "resourcePath", "= ", "range", "= false", "effects", "begin array 3", "begin item 1",
            "Data", "pointer to Effect::AudioReverb", "end item", "begin item 2", "Data", "pointer to nothing",
            "end item", "begin item 3", "Data", "pointer to Effect::AudioReverb", "end item", "end array"));
}

TEST(HolderOnTheInterfaces, WritesAnEmptyList)
{
    Recorder recorder;
    EffectsHolder().Serialize(recorder);
    recorder.calls.erase(recorder.calls.begin(), recorder.calls.end() - 3);
    EXPECT_THAT(recorder.calls, ElementsAre("effects", "begin array 0", "end array"));
}

TEST(HolderOnTheInterfaces, AnEnhanceIsOneLevelFurtherDown)
{
    Recorder enhance;
    withEmptySlot<AudioEnhance>()->Serialize(enhance);
    ASSERT_GE(enhance.calls.size(), 3U);
    EXPECT_EQ(enhance.calls[2], "$base");
    // Behind that one comes what a holder with the same identity writes.
    EffectsHolder holder(Id::AudioEnhance, Id::AudioEnhance, Type::Audio);
    holder.tag = Tags::tagAudioEnhance;
    holder.addEffect(reverb(1))->addEffect(nullptr)->addEffect(reverb(3));
    Recorder recorder;
    holder.Serialize(recorder);
    enhance.calls.erase(enhance.calls.begin());
    EXPECT_EQ(enhance.calls, recorder.calls);
}

/// Reads a list of so many items out of nothing, and gives the objects that it was loaded with. Behind the last of
/// them it throws.
class Player final : public Serialize::IDeserializer, private Serialize::IValueReader
{
public:
    explicit Player(std::int32_t count)
        : m_count(count)
    {}

    std::deque<std::unique_ptr<ISerializable>> objects;
    std::vector<std::string> calls; ///< from the list's name on

    void read(std::unique_ptr<ISerializable> & holder) override
    {
        if (objects.empty())
            throw std::runtime_error("no more objects");
        calls.push_back("pointer");
        holder = std::move(objects.front());
        objects.pop_front();
    }
    void read(ISerializable &) override {}
    IValueReader & values() override { return *this; }

private:
    void endItem() override { calls.push_back("end item"); }
    void beginItem(std::int32_t number) override { calls.push_back("begin item " + std::to_string(number)); }
    void endArray() override { calls.push_back("end array"); }
    void beginArray(std::int32_t & count) override
    {
        calls.push_back("begin array");
        count = m_count;
    }
    void name(char const * name) override
    {
        if (name == std::string("effects"))
            calls.clear();
        calls.push_back(name);
    }
    void value(QString &) override {}
    void value(std::string &) override {}
    void value(std::int64_t &) override {}
    void value(double &) override {}
    void value(std::uint32_t &) override {}
    void value(std::int32_t &) override {}
    void value(bool &) override {}

    std::int32_t m_count;
};

TEST(HolderOnTheInterfaces, ReadsItemsNumberedFromOne)
{
    Player player(2);
    player.objects.push_back(reverb(1));
    player.objects.push_back(reverb(2));
    EffectsHolder holder;
    holder.Deserialize(player);
    EXPECT_THAT(player.calls, ElementsAre("effects", "begin array", "begin item 1", "Data", "pointer", "end item",
                                  "begin item 2", "Data", "pointer", "end item", "end array"));
    ASSERT_EQ(holder.effects.size(), 2U);
    EXPECT_EQ(delay(*holder.effects[0]), 1);
    EXPECT_EQ(delay(*holder.effects[1]), 2);
}

TEST(HolderOnTheInterfaces, ACountBelowOneEndsTheArrayAtOnce)
{
    for (std::int32_t const count : {0, -1, INT32_MIN}) {
        Player player(count);
        AudioEnhance holder;
        holder.addEffect(reverb(1));
        holder.Deserialize(player);
        EXPECT_THAT(player.calls, ElementsAre("effects", "begin array", "end array"));
        EXPECT_EQ(holder.effects.size(), 1U);
    }
}

TEST(HolderOnTheInterfaces, ReadingAppends)
{
    EffectsHolder holder;
    holder.addEffect(reverb(1))->addEffect(reverb(2));
    for (int const number : {3, 4}) {
        Player player(1);
        player.objects.push_back(reverb(number));
        holder.Deserialize(player);
    }
    ASSERT_EQ(holder.effects.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(delay(*holder.effects[i]), static_cast<std::int64_t>(i) + 1);
}

TEST(HolderOnTheInterfaces, AFailureLeavesWhatWasReadAndTheEmptySlot)
{
    EffectsHolder holder;
    holder.addEffect(reverb(1));
    Player player(5);
    player.objects.push_back(reverb(2));
    EXPECT_EQ(errorOf([&] { holder.Deserialize(player); }), "no more objects");
    EXPECT_THAT(player.calls,
        ElementsAre("effects", "begin array", "begin item 1", "Data", "pointer", "end item", "begin item 2", "Data"));
    ASSERT_EQ(holder.effects.size(), 3U);
    EXPECT_EQ(delay(*holder.effects[0]), 1);
    EXPECT_EQ(delay(*holder.effects[1]), 2);
    EXPECT_EQ(holder.effects[2], nullptr);
}

/// No effect, and known by its instances.
struct Stray : ISerializable
{
    Stray() { instances.insert(this); }
    ~Stray() override { instances.erase(this); }
    std::string GetNameInArchive() const override { return "Test::Stray"; }
    void Serialize(Serialize::ISerializer &) const override {}
    void Deserialize(Serialize::IDeserializer &) override {}

    static inline std::set<Stray *> instances;
};

struct StrayCreator : Serialize::BaseCreator
{
    ISerializable * create() const override { return new Stray; }
};

Serialize::Registrator const strayRegistrator("Test::Stray", new StrayCreator);

/// The reader gave them up and the holder did not take them: the test does.
void collectStrays(std::size_t expected)
{
    EXPECT_EQ(Stray::instances.size(), expected);
    while (!Stray::instances.empty())
        delete *Stray::instances.begin();
}

TEST(HolderOnTheInterfaces, WhatIsNoEffectLeavesAnEmptySlotAndIsNotReleased)
{
    Player player(3);
    player.objects.push_back(reverb(1));
    player.objects.push_back(std::make_unique<Stray>());
    player.objects.push_back(reverb(3));
    auto holder = std::make_unique<EffectsHolder>();
    holder->Deserialize(player);
    expectEmptySlot(*holder);
    holder.reset();
    collectStrays(1);
}

TEST(HolderOnTheInterfaces, WhatIsNoEffectInAStreamIsTreatedTheSame)
{
    // An effect's slot in the stream of a holder, with a stray object in its place.
    std::string bytes = toStream(*withEmptySlot());
    std::size_t const slot = bytes.find("Data0") + 4;
    bytes.replace(slot, 1, std::string("P\x0b\0\0\0\0\0\0\0Test::Strayo", 21));
    expectEmptySlot(*fromStream(bytes));
    collectStrays(1);
}

} // namespace
