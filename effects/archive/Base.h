#pragma once

#include <typeinfo>

#include <boost/preprocessor/control/expr_if.hpp>
#include <boost/preprocessor/punctuation/comma_if.hpp>
#include <boost/preprocessor/seq/for_each_i.hpp>
#include <boost/preprocessor/stringize.hpp>
#include <boost/preprocessor/variadic/elem.hpp>
#include <boost/preprocessor/variadic/to_seq.hpp>

#include <EditorSerialization/Traversal.h>
#include <effects/Base.h>

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

/// Defines the `serialize` of a video effect, from the class and its own fields in the archives' order. The keys are
/// the fields' names: one that is renamed is lost from saved projects.
#define EFFECT_VIDEO_FIELDS(...)                                                                                       \
    template <class Archive> void BOOST_PP_VARIADIC_ELEM(0, __VA_ARGS__)::serialize(Archive & archive)                 \
    {                                                                                                                  \
        fields<VideoEffect>(                                                                                           \
            archive, *this BOOST_PP_SEQ_FOR_EACH_I(EFFECT_FIELD, , BOOST_PP_VARIADIC_TO_SEQ(__VA_ARGS__)));            \
    }

// The first of the list is the class.
#define EFFECT_FIELD(r, data, index, name)                                                                             \
    BOOST_PP_COMMA_IF(index) BOOST_PP_EXPR_IF(index, field(BOOST_PP_STRINGIZE(name), name))
