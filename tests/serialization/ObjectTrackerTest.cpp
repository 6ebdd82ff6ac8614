#include <stdexcept>
#include <string>

#include "Chain.h"

#include <EditorSerialization/Error.h>
#include <EditorSerialization/ObjectTracker.h>
#include <EditorSerialization/Registry.h>
#include <effects/Equalizer.h>
#include <effects/Holder.h>
#include <effects/Modulation.h>
#include <effects/Voice.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Serialize::ObjectTracker;
using Kind = ObjectTracker::Kind;
using Testing::chain;
using testing::HasSubstr;

void point(ObjectTracker & tracker, Object const * effect)
{
    tracker << effect;
}

template <class Walk> std::string errorOf(Walk const & walk)
{
    try {
        walk();
    } catch (std::exception const & error) {
        return error.what();
    }
    return "no error";
}

Kind kind(ObjectTracker const & tracker, Serialize::ISerializable const & object)
{
    return tracker.entries().at(&object).kind;
}

TEST(ObjectTrackerOnEffects, WalksEveryClass)
{
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Serialize::Registry::create(name);
        auto const * const effect = dynamic_cast<Object const *>(object.get());
        if (!effect)
            continue;
        SCOPED_TRACE(name);
        ObjectTracker tracker;
        ASSERT_NO_THROW(point(tracker, effect));
        EXPECT_EQ(kind(tracker, *effect), Kind::OwnedPointer);
        EXPECT_TRUE(tracker.entries().at(effect).saved);
        // Its bases lie at its own address and are no objects of their own.
        EXPECT_NO_THROW(point(tracker, effect));
    }
}

TEST(ObjectTrackerOnEffects, HeldEffectsAreReachedByPointer)
{
    AudioEnhance enhance;
    enhance.addEffect(std::make_unique<AudioVibrato>())->addEffect(nullptr)->addEffect(chain(2));
    auto const & inner = dynamic_cast<EffectsHolder const &>(*enhance.effects[2]);
    {
        ObjectTracker tracker;
        tracker.setForeign(true);
        point(tracker, &enhance);
        EXPECT_EQ(kind(tracker, enhance), Kind::Pointer);
        EXPECT_EQ(kind(tracker, *enhance.effects[0]), Kind::Pointer);
        EXPECT_EQ(kind(tracker, inner), Kind::Pointer);
        EXPECT_EQ(kind(tracker, *inner.effects[0]), Kind::Pointer);
        EXPECT_EQ(tracker.entries().count(nullptr), 0U);
    }
    ObjectTracker tracker;
    tracker << enhance;
    EXPECT_EQ(kind(tracker, enhance), Kind::Reference);
    EXPECT_EQ(kind(tracker, *enhance.effects[0]), Kind::OwnedPointer);
    EXPECT_TRUE(tracker.entries().at(enhance.effects[0].get()).release);
}

TEST(ObjectTrackerOnEffects, HeldEffectsAreReleasedWithTheirHolder)
{
    auto enhance = std::make_unique<AudioEnhance>();
    enhance->addEffect(std::make_unique<AudioVibrato>())->addEffect(nullptr)->addEffect(chain(3));
    ObjectTracker tracker;
    point(tracker, enhance.release());
    // Each effect is deleted once: the C library or the address sanitizer ends the program otherwise.
    tracker.releaseAll();
    EXPECT_TRUE(tracker.entries().empty());
}

TEST(ObjectTrackerOnEffects, AnEffectReachedByReferenceCanBeReachedByPointer)
{
    AudioVibrato const effect;
    ObjectTracker tracker;
    tracker << effect;
    EXPECT_NO_THROW(point(tracker, &effect));
    EXPECT_EQ(kind(tracker, effect), Kind::Reference);
}

TEST(ObjectTrackerOnEffects, AnEffectIsReachedByReferenceOnce)
{
    AudioVibrato const effect;
    ObjectTracker tracker;
    tracker << effect;
    EXPECT_EQ(errorOf([&] { tracker << effect; }), "Object adressed by reference was already serialized by reference");
}

TEST(ObjectTrackerOnEffects, AnEffectReachedByPointerIsNotReachedByReference)
{
    AudioVibrato const effect;
    ObjectTracker tracker;
    point(tracker, &effect);
    EXPECT_EQ(errorOf([&] { tracker << effect; }), "Object adressed by reference was already serialized by pointer");
}

TEST(ObjectTrackerOnEffects, RecordsInListsAreReachedByReference)
{
    auto equalizer = AudioEqualizer::makePreset(AudioEqualizer::Preset{2});
    AudioEcho echo;
    echo.echos = {{1, 0.5}};
    ObjectTracker tracker;
    point(tracker, &equalizer);
    point(tracker, &echo);
    for (auto const & band : equalizer.multiband)
        EXPECT_EQ(kind(tracker, band), Kind::Reference);
    EXPECT_EQ(kind(tracker, echo.echos[0]), Kind::Reference);

    // A band that is somebody's object already stops the walk of another equalizer.
    AudioEqualizer other;
    other.multiband = {{100, 0}, {200, 0}};
    AudioEqualizer::BandEq const * const band = &other.multiband[1];
    tracker << band;
    EXPECT_EQ(
        errorOf([&] { point(tracker, &other); }), "Object adressed by reference was already serialized by pointer");
    EXPECT_TRUE(tracker.entries().at(&other.multiband[0]).saved);
    EXPECT_FALSE(tracker.entries().at(&other).saved);
}

TEST(ObjectTrackerOnEffects, HoldersNestToTheLimit)
{
    auto const deepest = chain(Serialize::maxObjectDepth);
    ObjectTracker tracker;
    EXPECT_NO_THROW(point(tracker, deepest.get()));
    auto const tooDeep = chain(Serialize::maxObjectDepth + 1);
    EXPECT_EQ(errorOf([&] { point(tracker, tooDeep.get()); }), "objects are nested more than 64 deep");
}

} // namespace
