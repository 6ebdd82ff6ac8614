#include <effects/Holder.h>

#include <utility>

#include <effects/Identity.h>

namespace Effect {

EffectsHolder::EffectsHolder() = default;

EffectsHolder::EffectsHolder(QString const & effectId, QString const & group, Type effectType)
    : EffectDescriptor(effectId, group, effectType)
{}

EffectsHolder * EffectsHolder::addEffect(std::unique_ptr<Object> effect)
{
    effects.push_back(std::move(effect));
    return this;
}

AudioEnhance::AudioEnhance()
    : EffectsHolder(Id::AudioEnhance, Id::AudioEnhance, Type::Audio)
{
    tag = Tags::tagAudioEnhance;
}

QString AudioEnhance::defaultTag() const
{
    return Tags::tagAudioEnhance;
}

} // namespace Effect
