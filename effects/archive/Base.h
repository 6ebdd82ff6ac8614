#pragma once

#include <typeinfo>

#include <effects/Base.h>
#include <EditorSerialization/Traversal.h>

namespace Effect {

using Serialize::field;
using Serialize::fields;

template <class Archive> void EffectDescriptor::serialize(Archive & archive)
{
    // On the interfaces the type is a plain descriptor's own affair: a subclass's constructor fixes it.
    if constexpr (Serialize::isInterface<Archive>)
        if (typeid(*this) != typeid(EffectDescriptor))
            return fields<Object>(archive, *this);
    fields<Object>(archive, *this, field("type", descriptorType));
}

template <class Archive> void VideoEffect::serialize(Archive & archive)
{
    fields<Object>(archive, *this);
}

template <class Archive> void AudioFilter::serialize(Archive & archive)
{
    fields<Object>(archive, *this);
}

template <class Archive> void AudioEffect::serialize(Archive & archive)
{
    fields<Object>(archive, *this);
}

} // namespace Effect
