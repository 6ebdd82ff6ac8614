/// @file
/// Making a class known in the archives and to `Effect::Schema`, from its description. Families do it through Family.h,
/// a host's own class directly: `EFFECT_KEY` first, then `EFFECT_REGISTER`.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <tuple>
#include <type_traits>
#include <utility>

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

/// The archive name of a class that has class information; null for `void`.
template <class Class> constexpr char const * archiveName()
{
    if constexpr (std::is_void_v<Class>)
        return nullptr;
    else
        return boost::serialization::ext::guid_impl<Class>::call();
}

/// Whether a new object of the class has its optional record.
template <class Creator> bool newHasOptional()
{
    static bool const has = [] {
        std::unique_ptr<::Serialize::ISerializable> const object(Creator().create());
        for (auto const * layout = object ? object->GetLayout() : nullptr; layout; layout = layout->base)
            for (std::size_t index = 0; index < layout->fieldCount; ++index) {
                ::Serialize::FieldLayout const & field = layout->fields[index];
                if (field.form == ::Serialize::Form::OptionalRecord &&
                    field.container->size(field.address(*object)) != 0)
                    return true;
            }
        return false;
    }();
    return has;
}

/// Describes a class to `Serialize::makeLayout`.
template <class Described, class Base, class Creator> struct LayoutSource
{
    using Class = Described;

    static constexpr bool hasClassInformation = true;
    static constexpr bool (*newHasOptional)() = &Registration::newHasOptional<Creator>;
    static constexpr char const * name() { return archiveName<Class>(); }
    static constexpr char const * baseName() { return archiveName<Base>(); }
    static constexpr ::Serialize::Layout const * base()
    {
        if constexpr (std::is_void_v<Base>)
            return nullptr;
        else
            return ::Serialize::Access::layout<Base>();
    }
    static constexpr auto fields()
    {
        return fields(std::make_index_sequence<std::tuple_size_v<decltype(Class::describe().own)>>());
    }

private:
    template <std::size_t... index> static constexpr auto fields(std::index_sequence<index...>)
    {
        return std::array<::Serialize::FieldLayout, sizeof...(index)>{
            ::Serialize::layoutOf<Class, std::get<index>(Class::describe().own).member>(
                std::get<index>(Class::describe().own).key)...};
    }
};

} // namespace Effect::Registration

/// The archive name as the framework's key. Every source that walks a class or a base must have seen its key first,
/// or the framework would take it for a class without one.
#define EFFECT_KEY(Class)                                                                                              \
    template <> struct boost::serialization::guid_defined<Effect::Class> : boost::mpl::true_                           \
    {};                                                                                                                \
    template <> struct boost::serialization::ext::guid_impl<Effect::Class>                                             \
    {                                                                                                                  \
        static constexpr char const * call() { return "Effect::" #Class; }                                             \
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
    ::Serialize::Layout const Effect::Class::s_layout =                                                                \
        ::Serialize::makeLayout<Effect::Registration::LayoutSource<Class, Base, Creator>>();                           \
    ::Serialize::Registrator const Effect::Class::s_registrator(                                                       \
        "Effect::" #Class, new (std::nothrow) Creator, &s_layout);                                                     \
    ::Serialize::Layout const * Effect::Class::GetLayout() const                                                       \
    {                                                                                                                  \
        return &s_layout;                                                                                              \
    }                                                                                                                  \
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
