#pragma once

#include <typeinfo>

#include <boost/preprocessor/comparison/greater.hpp>
#include <boost/preprocessor/control/expr_if.hpp>
#include <boost/preprocessor/punctuation/comma_if.hpp>
#include <boost/preprocessor/seq/for_each_i.hpp>
#include <boost/preprocessor/stringize.hpp>
#include <boost/preprocessor/variadic/elem.hpp>
#include <boost/preprocessor/variadic/to_seq.hpp>

#include <EditorSerialization/Traversal.h>
#include <effects/Base.h>

/// Defines a class's `serialize`, from the class, its base and its own fields in the archives' order. The keys are the
/// fields' names: one that is renamed is lost from saved projects.
#define EFFECT_FIELDS(...)                                                                                             \
    template <class Archive> void BOOST_PP_VARIADIC_ELEM(0, __VA_ARGS__)::serialize(Archive & archive)                 \
    {                                                                                                                  \
        fields<BOOST_PP_VARIADIC_ELEM(1, __VA_ARGS__)>(                                                                \
            archive, *this BOOST_PP_SEQ_FOR_EACH_I(EFFECT_FIELD, , BOOST_PP_VARIADIC_TO_SEQ(__VA_ARGS__)));            \
    }

// The first two of the list are the class and its base.
#define EFFECT_FIELD(r, data, index, name)                                                                             \
    BOOST_PP_COMMA_IF(BOOST_PP_GREATER(index, 1))                                                                      \
    BOOST_PP_EXPR_IF(BOOST_PP_GREATER(index, 1), field(BOOST_PP_STRINGIZE(name), name))

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

EFFECT_FIELDS(VideoEffect, Object)
EFFECT_FIELDS(AudioFilter, Object)
EFFECT_FIELDS(AudioEffect, Object)

} // namespace Effect
