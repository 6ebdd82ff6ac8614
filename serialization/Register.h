/// @file
/// Making a class known in the archives and to `Effect::Schema`, from its description. Families do it through Family.h,
/// a host's own class directly: `EFFECT_KEY` first, then `EFFECT_REGISTER`.
#pragma once

#include <new>
#include <tuple>
#include <type_traits>

#include <boost/serialization/export.hpp>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/ObjectTracker.h>
#include <effects/Base.h>

namespace Effect::Registration {

/// Registers the casts that lead from `Class` to the bases through which it is archived. The one to its direct base
/// is registered where that base is walked.
template <class Class> void registerCasts()
{
    if constexpr (std::is_base_of_v<Object, Class>)
        boost::serialization::void_cast_register<Class, Object>();
    boost::serialization::void_cast_register<Class, ::Serialize::ISerializable>();
}

/// Names a class's base in the archives, which is not always its base in C++; `void` for none.
template <class Base> struct ArchiveBase
{};

/// Walks an object's content: its base first, then the fields that its class describes.
template <class Archive, class Class, class Base> void walk(Archive & archive, Class & object, ArchiveBase<Base>)
{
    std::apply(
        [&](auto const &... parameter) {
            if constexpr (std::is_void_v<Base>)
                ::Serialize::fields(archive, ::Serialize::field(parameter.key, object.*parameter.member)...);
            else
                ::Serialize::fields<Base>(
                    archive, object, ::Serialize::field(parameter.key, object.*parameter.member)...);
        },
        Class::describe().own);
}

template <class Class, std::size_t... Index> constexpr auto makeFields(std::index_sequence<Index...>)
{
    return std::array<::Serialize::FieldLayout, sizeof...(Index)>{
        ::Serialize::layoutOf<Class, std::get<Index>(Class::describe().own).member>(
            std::get<Index>(Class::describe().own).key)...};
}

template <class Class> inline constexpr std::size_t fieldCount = std::tuple_size_v<decltype(Class::describe().own)>;

template <class Class>
inline constexpr auto fieldLayouts = makeFields<Class>(std::make_index_sequence<fieldCount<Class>>());

template <class Class, class Base> constexpr ::Serialize::Layout makeLayout(char const * name)
{
    ::Serialize::Layout const * base = nullptr;
    if constexpr (!std::is_void_v<Base>)
        base = ::Serialize::Access::layout<Base>();
    return {name, true, base, fieldLayouts<Class>.data(), fieldCount<Class>};
}

} // namespace Effect::Registration

/// The archive name as the framework's key. Every source that walks a class or a base must have seen its key first,
/// or the framework would take it for a class without one.
#define EFFECT_KEY(Class)                                                                                              \
    template <> struct boost::serialization::guid_defined<Effect::Class> : boost::mpl::true_                           \
    {};                                                                                                                \
    template <> struct boost::serialization::ext::guid_impl<Effect::Class>                                             \
    {                                                                                                                  \
        static char const * call() { return "Effect::" #Class; }                                                       \
    };

#define EFFECT_INSTANTIATE(Class, Archive)                                                                             \
    template void Effect::Class::serialize(::Serialize::Archive &);                                                    \
    template struct boost::archive::detail::ptr_serialization_support<::Serialize::Archive, Effect::Class>;

/// Defines what `EFFECT_CLASS` declares, and instantiates the class's `serialize` for the seven kinds of reader and
/// writer.
#define EFFECT_REGISTER(Class, Base)                                                                                   \
    struct Effect::Class::Creator final : ::Serialize::BaseCreator                                                     \
    {                                                                                                                  \
        Creator() { Effect::Registration::registerCasts<Class>(); }                                                    \
        ::Serialize::ISerializable * create() const override { return new (std::nothrow) Class; }                      \
    };                                                                                                                 \
    ::Serialize::Registrator const Effect::Class::s_registrator("Effect::" #Class, new (std::nothrow) Creator);        \
    ::Serialize::Layout const Effect::Class::s_layout =                                                                \
        Effect::Registration::makeLayout<Effect::Class, Base>("Effect::" #Class);                                      \
    char const * Effect::Class::NameInArchive()                                                                        \
    {                                                                                                                  \
        return "Effect::" #Class;                                                                                      \
    }                                                                                                                  \
    std::string Effect::Class::GetNameInArchive() const                                                                \
    {                                                                                                                  \
        return "Effect::" #Class;                                                                                      \
    }                                                                                                                  \
    template <class Archive> void Effect::Class::serialize(Archive & archive)                                          \
    {                                                                                                                  \
        Effect::Registration::walk(archive, *this, Effect::Registration::ArchiveBase<Base>());                         \
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

// The bases are walked by the classes of every family.
#define ROW_CLASS(Class, Base) EFFECT_KEY(Class)
#define ROWS <effects/Base.def>
#include <effects/Rows.h>
