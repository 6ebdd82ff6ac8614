#include <type_traits>

#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Modulation.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;

TEST(EffectsHolder, AnswersAsADescriptor)
{
    EffectsHolder const empty;
    EXPECT_EQ(empty.id, "");
    EXPECT_EQ(empty.groupId, "");
    EXPECT_EQ(empty.tag, "");
    EXPECT_EQ(empty.type(), Type::Video);
    EXPECT_EQ(empty.impl(), Impl::Descriptor);
    EXPECT_TRUE(empty.effects.empty());

    EffectsHolder const holder("id", "group", Type::Audio);
    EXPECT_EQ(holder.id, "id");
    EXPECT_EQ(holder.groupId, "group");
    EXPECT_EQ(holder.type(), Type::Audio);
    EXPECT_EQ(holder.impl(), Impl::Descriptor);
    EXPECT_TRUE(holder.effects.empty());
}

TEST(AudioEnhance, IsAHolder)
{
    AudioEnhance const effect;
    EXPECT_EQ(effect.id, Id::AudioEnhance);
    EXPECT_EQ(effect.groupId, Id::AudioEnhance);
    EXPECT_EQ(effect.tag, "effect_audio_enhance");
    EXPECT_EQ(effect.defaultTag(), "effect_audio_enhance");
    EXPECT_EQ(effect.processingSettingsId(), Id::AudioEnhance);
    EXPECT_EQ(effect.type(), Type::Audio);
    EXPECT_EQ(effect.impl(), Impl::Descriptor);
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_FALSE(effect.range.has_value());
    EXPECT_TRUE(effect.effects.empty());
}

TEST(EffectsHolder, KeepsTheOrderOfInsertion)
{
    auto flanger = std::make_unique<AudioFlanger>();
    auto vibrato = std::make_unique<AudioVibrato>();
    Object const * const addresses[] = {flanger.get(), vibrato.get()};
    EffectsHolder holder;
    EXPECT_EQ(holder.addEffect(std::move(flanger))->addEffect(std::move(vibrato)), &holder);
    ASSERT_EQ(holder.effects.size(), 2U);
    EXPECT_EQ(holder.effects[0].get(), addresses[0]);
    EXPECT_EQ(holder.effects[1].get(), addresses[1]);
}

TEST(EffectsHolder, NullMakesAnEmptySlot)
{
    EffectsHolder holder;
    holder.addEffect(nullptr);
    ASSERT_EQ(holder.effects.size(), 1U);
    EXPECT_EQ(holder.effects[0], nullptr);
}

// An effect that reports its destruction.
struct Watched : AudioFilter
{
    explicit Watched(bool & gone)
        : AudioFilter("", "")
        , m_gone(gone)
    {}
    ~Watched() override { m_gone = true; }

private:
    bool & m_gone;
};

TEST(EffectsHolder, TakesItsEffectsAlong)
{
    bool gone = false;
    {
        EffectsHolder holder;
        holder.addEffect(std::make_unique<Watched>(gone));
        EXPECT_FALSE(gone);
    }
    EXPECT_TRUE(gone);
}

// What it owns is its own.
template <class Holder>
constexpr bool staysWhereItIs = !std::is_copy_constructible_v<Holder> && !std::is_move_constructible_v<Holder> &&
                                !std::is_copy_assignable_v<Holder> && !std::is_move_assignable_v<Holder>;
static_assert(staysWhereItIs<EffectsHolder>);
static_assert(staysWhereItIs<AudioEnhance>);

} // namespace
