#include <effects/Base.h>

namespace Effect {

namespace {

QString empty()
{
    return QStringLiteral("");
}

} // namespace

EffectDescriptor::EffectDescriptor()
    : Object(empty(), empty())
{}

EffectDescriptor::EffectDescriptor(QString const & effectId, QString const & group, Type effectType)
    : Object(effectId, group)
    , descriptorType(effectType)
{}

Type EffectDescriptor::type() const
{
    return descriptorType;
}

Impl EffectDescriptor::impl() const
{
    return Impl::Descriptor;
}

#define EFFECT_BASE(Class, itsType, itsImpl)                                                                           \
    Class::Class()                                                                                                     \
        : Object(empty(), empty())                                                                                     \
    {}                                                                                                                 \
    Class::Class(QString const & effectId, QString const & group)                                                      \
        : Object(effectId, group)                                                                                      \
    {}                                                                                                                 \
    Type Class::type() const                                                                                           \
    {                                                                                                                  \
        return itsType;                                                                                                \
    }                                                                                                                  \
    Impl Class::impl() const                                                                                           \
    {                                                                                                                  \
        return itsImpl;                                                                                                \
    }

EFFECT_BASE(VideoEffect, Type::Video, Impl::Effect)
EFFECT_BASE(AudioFilter, Type::Audio, Impl::Filter)
EFFECT_BASE(AudioEffect, Type::Audio, Impl::Effect)

#undef EFFECT_BASE

} // namespace Effect
