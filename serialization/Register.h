/// @file
/// Making the classes of a family known in the archives. A family's source includes its archive header and this one,
/// then applies `EFFECT_KEY` and `EFFECT_REGISTER` to its list in effects/ClassList.h.
#pragma once

#include <new>

#include <boost/serialization/export.hpp>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/ObjectTracker.h>
#include <effects/Base.h>
#include <effects/ClassList.h>

namespace Effect::Registration {

/// Registers the casts that lead from `Class` to the bases through which it is archived. The one to its direct base
/// is registered where that base is walked.
template <class Class> void registerCasts()
{
    if constexpr (std::is_base_of_v<Object, Class>)
        boost::serialization::void_cast_register<Class, Object>();
    boost::serialization::void_cast_register<Class, ::Serialize::ISerializable>();
}

} // namespace Effect::Registration

/// The archive name as the framework's key. Every source that walks a class or a base must have seen its key first,
/// or the framework would take it for a class without one.
#define EFFECT_KEY(Class)                                                                                              \
    template <> struct boost::serialization::guid_defined<Effect::Class> : boost::mpl::true_                           \
    {};                                                                                                                \
    template <> struct boost::serialization::ext::guid_impl<Effect::Class>                                             \
    {                                                                                                                  \
        static char const * call() { return Effect::Class::NameInArchive(); }                                          \
    };

#define EFFECT_INSTANTIATE(Class, Archive)                                                                             \
    template void Effect::Class::serialize(::Serialize::Archive &);                                                    \
    template struct boost::archive::detail::ptr_serialization_support<::Serialize::Archive, Effect::Class>;

/// Defines what `EFFECT_CLASS` declares, and instantiates the class's `serialize` for the seven kinds of reader and
/// writer.
#define EFFECT_REGISTER(Class)                                                                                         \
    struct Effect::Class::Creator final : ::Serialize::BaseCreator                                                     \
    {                                                                                                                  \
        Creator() { Effect::Registration::registerCasts<Class>(); }                                                    \
        ::Serialize::ISerializable * create() const override { return new (std::nothrow) Class; }                      \
    };                                                                                                                 \
    ::Serialize::Registrator const Effect::Class::s_registrator(NameInArchive(), new (std::nothrow) Creator);          \
    std::string Effect::Class::GetNameInArchive() const                                                                \
    {                                                                                                                  \
        return NameInArchive();                                                                                        \
    }                                                                                                                  \
    void Effect::Class::Serialize(::Serialize::ISerializer & serializer) const                                         \
    {                                                                                                                  \
        const_cast<Effect::Class *>(this)->serialize(serializer);                                                      \
    }                                                                                                                  \
    void Effect::Class::Deserialize(::Serialize::IDeserializer & deserializer)                                         \
    {                                                                                                                  \
        static_assert(::Serialize::Access::hasOwnSerialize<Effect::Class, ::Serialize::IDeserializer>(),               \
            "the class would be archived as its base");                                                                \
        serialize(deserializer);                                                                                       \
    }                                                                                                                  \
    template void Effect::Class::serialize(::Serialize::ISerializer &);                                                \
    template void Effect::Class::serialize(::Serialize::IDeserializer &);                                              \
    EFFECT_INSTANTIATE(Class, BinaryOArchive)                                                                          \
    EFFECT_INSTANTIATE(Class, BinaryIArchive)                                                                          \
    EFFECT_INSTANTIATE(Class, Json::oarchive)                                                                          \
    EFFECT_INSTANTIATE(Class, Json::iarchive)                                                                          \
    EFFECT_INSTANTIATE(Class, ObjectTracker)

EFFECTS_BASES(EFFECT_KEY)
