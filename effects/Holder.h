/// @file
/// Effects made of effects.
#pragma once

#include <deque>
#include <memory>

#include <effects/Base.h>

namespace Effect {

/// Several effects that are stored, catalogued and archived as one. The engine gets none of it: whoever applies a
/// holder hands the effects in it to the factory one by one.
struct EFFECTS_API EffectsHolder : EffectDescriptor
{
    EFFECT_CLASS(EffectsHolder)
    EffectsHolder();
    /// The identifier, the group and what `type()` answers.
    EffectsHolder(QString const & effectId, QString const & group, Type effectType);
    EffectsHolder(EffectsHolder const &) = delete;
    EffectsHolder & operator=(EffectsHolder const &) = delete;

    /// In the order of insertion. A slot can be empty: where null was added, and where an object was read that is no
    /// effect. `Deserialize` appends to what is there, the archives replace it.
    std::deque<std::unique_ptr<Object const>> effects;

    /// Appends the effect, or an empty slot for null.
    EffectsHolder * addEffect(std::unique_ptr<Object> effect);

    static constexpr auto describe()
    {
        return description("Several effects that are stored, catalogued and archived as one.",
            parameter("effects", &EffectsHolder::effects));
    }
};

/// Enhances a voice by several effects at once. The stock's ones come filled from the catalogue.
struct EFFECTS_API AudioEnhance : EffectsHolder
{
    EFFECT_CLASS(AudioEnhance)
    AudioEnhance();

    QString defaultTag() const override;

    static constexpr auto describe() { return description("Enhances a voice by several effects at once."); }
};

} // namespace Effect
