/// @file
/// How a class describes its content once for all archives: `fields<Base>(archive, *this, field("key", member), ...)`
/// walks the base first, then the fields in the order given. The JSON archives use the keys, the binary ones the
/// order alone, and the polymorphic interfaces both.
#pragma once

#include <array>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

#include <boost/serialization/base_object.hpp>
#include <boost/serialization/nvp.hpp>
#include <boost/serialization/string.hpp>

#include <EditorSerialization/Error.h>
#include <EditorSerialization/Interfaces.h>

namespace Serialize {

/// A key, which is a literal or null, and a pointer to its value.
template <class T> using Field = boost::serialization::nvp<T> const;

/// A field of that key. The key must outlive it.
template <class T> Field<T> field(char const * key, T & value)
{
    return boost::serialization::make_nvp(key, value);
}

/// Whether `Archive` is one of the two polymorphic interfaces.
template <class Archive>
inline constexpr bool isInterface =
    std::is_base_of_v<ISerializer, Archive> || std::is_base_of_v<IDeserializer, Archive>;

/// Whether `Archive` writes; the interfaces and the archives alike.
template <class Archive> constexpr bool isWriter()
{
    if constexpr (isInterface<Archive>)
        return std::is_base_of_v<ISerializer, Archive>;
    else
        return Archive::is_saving::value;
}

namespace Detail {

template <class T> struct IsDeque : std::false_type
{};
template <class T> struct IsDeque<std::deque<T>> : std::true_type
{};
template <class T> struct IsOptional : std::false_type
{};
template <class T> struct IsOptional<std::optional<T>> : std::true_type
{};
template <class T> struct IsArray : std::false_type
{};
template <class T, std::size_t N> struct IsArray<std::array<T, N>> : std::true_type
{};
template <class T> struct IsOwningPointer : std::false_type
{};
template <class T> struct IsOwningPointer<std::unique_ptr<T>> : std::true_type
{};

/// Reads into a copy, which replaces the value on success. Absent keys keep the old value, and a failed read leaves the
/// value unchanged.
template <class T, class Read> void readWhole(T & value, Read const & read)
{
    T copy = value;
    read(copy);
    value = std::move(copy);
}

/// The same for an optional value that is present in the archive.
template <class T, class Read> void readWhole(std::optional<T> & value, Read const & read)
{
    T copy = value.value_or(T());
    read(copy);
    value = std::move(copy);
}

template <class T> void writeContent(ISerializer & serializer, T const & value)
{
    IValueWriter & values = serializer.values();
    if constexpr (IsDeque<T>::value || IsArray<T>::value) {
        std::int32_t number = 0;
        values.beginArray(static_cast<std::int32_t>(value.size()));
        for (auto const & element : value) {
            values.beginItem(++number);
            writeContent(serializer, element);
            values.endItem();
        }
        values.endArray();
    } else if constexpr (IsOptional<T>::value) {
        values.value(value.has_value());
        if (value)
            writeContent(serializer, *value);
    } else if constexpr (IsOwningPointer<T>::value) {
        values.name("Data");
        serializer.write(value.get());
    } else if constexpr (std::is_base_of_v<ISerializable, T>) {
        serializer.write(value);
    } else if constexpr (std::is_enum_v<T>) {
        values.value(static_cast<std::int32_t>(value));
    } else {
        values.value(value);
    }
}

template <class T> void readContent(IDeserializer & deserializer, T & value)
{
    IValueReader & values = deserializer.values();
    if constexpr (IsDeque<T>::value) {
        using Element = typename T::value_type;
        std::int32_t count = 0;
        values.beginArray(count);
        // Objects are appended to those that are there, records take the place of the old ones.
        if constexpr (!IsOwningPointer<Element>::value)
            value.clear();
        for (std::int32_t number = 1; number <= count; ++number) {
            // The slot comes first; it stays empty if its object cannot be read.
            Element & slot = value.emplace_back();
            values.beginItem(number);
            readContent(deserializer, slot);
            values.endItem();
        }
        values.endArray();
    } else if constexpr (IsArray<T>::value) {
        std::int32_t count = 0;
        values.beginArray(count);
        if (count != static_cast<std::int32_t>(value.size()))
            throw ArchiveError(ArchiveError::other_exception, "an array has " + std::to_string(count) +
                                                                  " items where " + std::to_string(value.size()) +
                                                                  " are expected");
        readWhole(value, [&](T & copy) {
            std::int32_t number = 0;
            for (auto & element : copy) {
                values.beginItem(++number);
                readContent(deserializer, element);
                values.endItem();
            }
        });
        values.endArray();
    } else if constexpr (IsOptional<T>::value) {
        bool present = false;
        values.value(present);
        if (present)
            readWhole(value, [&](auto & copy) { readContent(deserializer, copy); });
        else
            value.reset();
    } else if constexpr (IsOwningPointer<T>::value) {
        using Object = typename T::element_type;
        values.name("Data");
        std::unique_ptr<ISerializable> holder;
        deserializer.read(holder);
        // The holder gives the object up before the cast: one of another class is nobody's from here on. Hosts
        // keep such objects reachable through their own storage, so it is not ours to delete.
        value.reset(dynamic_cast<Object *>(holder.release()));
    } else if constexpr (std::is_base_of_v<ISerializable, T>) {
        deserializer.read(value);
    } else if constexpr (std::is_enum_v<T>) {
        std::int32_t number = 0;
        values.value(number);
        value = static_cast<T>(number);
    } else {
        values.value(value);
    }
}

template <class T> void interfaceField(ISerializer & serializer, Field<T> & field)
{
    serializer.values().name(field.name());
    writeContent(serializer, field.const_value());
}

template <class T> void interfaceField(IDeserializer & deserializer, Field<T> & field)
{
    deserializer.values().name(field.name());
    readContent(deserializer, field.value());
}

} // namespace Detail

/// Specialised for a value type that is archived as a plain value: `using Type`, `static Type get(T const &)` and
/// `static void set(T &, Type)`.
template <class T> struct PlainForm
{
    using Type = void; ///< the plain value; void for a type that has none
};

namespace Detail {

template <class Archive, class T> void walkField(Archive & archive, Field<T> & field)
{
    if constexpr (!std::is_void_v<typename PlainForm<T>::Type>) {
        auto plain = PlainForm<T>::get(field.const_value());
        walkField(archive, Serialize::field(field.name(), plain));
        // A key that is absent leaves the value as it was, and setting that changes nothing.
        if constexpr (!isWriter<Archive>())
            PlainForm<T>::set(field.value(), plain);
    } else if constexpr (isInterface<Archive>) {
        interfaceField(archive, field);
    } else {
        archive & field;
    }
}

} // namespace Detail

/// The content of a class without a base: each field under its key.
template <class Archive, class... Values> void fields(Archive & archive, Field<Values> &... own)
{
    (Detail::walkField(archive, own), ...);
}

/// The content of a class with the direct base `Base`: the base, then each field under its key. In an archive the
/// base is an object under its own archive name; on the interfaces its content runs on, marked as a base's.
template <class Base, class Archive, class Class, class... Values>
void fields(Archive & archive, Class & object, Field<Values> &... own)
{
    if constexpr (isInterface<Archive>) {
        addBaseName(archive);
        Access::serialize(archive, static_cast<Base &>(object));
    } else {
        archive & field(Base::NameInArchive(), boost::serialization::base_object<Base>(object));
    }
    fields(archive, own...);
}

} // namespace Serialize
