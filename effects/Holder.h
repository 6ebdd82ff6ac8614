/// @file
/// Effects made of effects.
#pragma once

#include <deque>
#include <memory>

#include <effects/Base.h>

namespace Effect {

/// Several effects that are stored, catalogued and archived as one. The factory does not convert a holder: to apply it,
/// pass the effects in it to the factory one by one.
struct EFFECTS_API EffectsHolder : EffectDescriptor
{
    EFFECT_CLASS(EffectsHolder)
    EffectsHolder();
    /// @param effectType  what `type()` returns
    EffectsHolder(QString const & effectId, QString const & group, Type effectType);
    EffectsHolder(EffectsHolder const &) = delete;
    EffectsHolder & operator=(EffectsHolder const &) = delete;

    /// The effects, which the holder owns, in the order in which they were added. A slot is null where null was added
    /// or where the object that was read is not an effect. `Deserialize` appends; the archives replace the list.
    std::deque<std::unique_ptr<Object const>> effects;

    /// Appends the effect, or an empty slot for null, and returns this holder.
    EffectsHolder * addEffect(std::unique_ptr<Object> effect);

    static constexpr auto describe()
    {
        return description("Several effects that are stored and applied together.",
            parameter("effects", &EffectsHolder::effects)
                .label("Effects")
                .text("What the holder contains, in the order in which it was added"));
    }
};

/// Improves a voice with several effects at once. A new one is empty; those of the stock contain their effects.
struct EFFECTS_API AudioEnhance : EffectsHolder
{
    EFFECT_CLASS(AudioEnhance)
    AudioEnhance();

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Improves the sound of a voice with several effects at once.");
    }
};

} // namespace Effect
