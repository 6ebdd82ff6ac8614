/// @file
/// The layout of archived classes: which fields a class has, under which keys, in which form, and where they are in an
/// object. Each class has one constant table, which the compiler makes from the class's description.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Traversal.h>

#include <QString>

namespace Serialize {

/// Of a class's JSON texts without texts, records and lists, in bytes.
inline constexpr std::size_t maxTextSize = 8192;

/// How the value of a field is stored in the object.
enum class Form : std::uint8_t
{
    Boolean,
    Int32, ///< also enumerations
    UInt32,
    Int64,
    Double,
    Text,           ///< `QString`
    Bytes,          ///< `std::string`
    Doubles,        ///< `std::array<double, N>`
    Record,         ///< an object by value
    OptionalRecord, ///< `std::optional` of one
    Records,        ///< `std::deque` of objects by value
    Objects,        ///< `std::deque` of owning pointers, each to an object of its own class
};

struct Layout;

/// What can be done with a container whose type is not known: an optional record, a list of records or of pointers.
/// An operation that a container lacks is null.
struct ContainerOperations
{
    std::size_t (*size)(void const * container); ///< 0 or 1 for an optional record
    /// Null for an empty slot. @param index  below the size
    ISerializable * (*at)(void const * container, std::size_t index);
    void (*clear)(void * container); ///< leaves it empty
    /// Appends a default record and returns it.
    ISerializable * (*append)(void * container);
    /// Appends an object, which the container owns from here on; null appends an empty slot. Returns false, and drops
    /// the object, where its class does not belong into the container.
    bool (*adopt)(void * container, std::unique_ptr<ISerializable> object);
};

/// One field of a class.
struct FieldLayout
{
    char const * key;   ///< in the JSON archive and on the interfaces
    Form form;          ///< how the value is stored
    std::uint8_t count; ///< of the numbers in `Form::Doubles`
    /// The address of the value in an object of the class; of a record, that of its `ISerializable`.
    void * (*address)(ISerializable & object);
    Layout const * record;                           ///< of records, else null; of lists of records, their elements'
    ContainerOperations const * container = nullptr; ///< of optional records and lists
};

/// One key of a class's object in a JSON text.
struct KeyLayout
{
    char const * literal;      ///< the key as it is written after another value: `,"key":`
    std::uint8_t length;       ///< of the literal
    FieldLayout const * field; ///< that the key holds; null for the base

    /// Without the punctuation.
    constexpr std::string_view key() const { return {literal + 2, std::size_t(length) - 4}; }
};

/// The fields of a class.
struct Layout
{
    char const * name;           ///< archive name
    std::type_info const * type; ///< of the class
    bool hasClassInformation;    ///< whether its JSON object has a meta object
    Layout const * base;         ///< null where the class has none in the archives
    FieldLayout const * fields;  ///< own fields, in the order of the binary archives
    std::size_t fieldCount;      ///< number of own fields
    KeyLayout const * keys;      ///< of the own fields and the base, in the order of a JSON text
    std::size_t keyCount;        ///< number of keys
    char const * head;           ///< with which the JSON text of an object begins
    std::uint16_t headLength;    ///< of the head
    std::uint16_t textSize;      ///< at most: of an object's JSON text without texts, records and lists
    /// Whether a new object has its optional record, of which a class has one at most, inherited ones included. Such a
    /// class writes an absent record as null, or it would be back after the next load. Null for a mere base or record.
    bool (*newHasOptional)();
};

/// @cond
namespace Detail {

template <class Class, auto Member> void * addressOf(ISerializable & object)
{
    auto * const member = &(static_cast<Class &>(object).*Member);
    if constexpr (std::is_base_of_v<ISerializable, std::remove_pointer_t<decltype(member)>>)
        return static_cast<ISerializable *>(member);
    else
        return member;
}

template <class Container> struct Operations
{
    using Element = typename Container::value_type;

    static Container & cast(void * container) { return *static_cast<Container *>(container); }
    static Container const & cast(void const * container) { return *static_cast<Container const *>(container); }

    static std::size_t size(void const * container)
    {
        if constexpr (IsOptional<Container>::value)
            return cast(container) ? 1 : 0;
        else
            return cast(container).size();
    }
    static ISerializable * at(void const * container, [[maybe_unused]] std::size_t index)
    {
        // A caller that changes the object has a container that may be changed.
        auto & object = const_cast<Container &>(cast(container));
        if constexpr (IsOptional<Container>::value)
            return &*object;
        else if constexpr (IsOwningPointer<Element>::value)
            return const_cast<std::remove_const_t<typename Element::element_type> *>(object[index].get());
        else
            return &object[index];
    }
    static void clear(void * container)
    {
        if constexpr (IsOptional<Container>::value)
            cast(container).reset();
        else
            cast(container).clear();
    }
    static ISerializable * append(void * container)
    {
        if constexpr (IsOptional<Container>::value)
            return &cast(container).emplace();
        else
            return &cast(container).emplace_back();
    }
    static bool adopt(void * container, std::unique_ptr<ISerializable> object)
    {
        using Owned = typename Element::element_type;
        auto * const cast = dynamic_cast<Owned *>(object.get());
        if (object && !cast)
            return false;
        object.release();
        Operations::cast(container).emplace_back(cast);
        return true;
    }

    static constexpr ContainerOperations make()
    {
        if constexpr (IsOwningPointer<Element>::value)
            return {size, at, clear, nullptr, adopt};
        else
            return {size, at, clear, append, nullptr};
    }
};

template <class Container> inline constexpr ContainerOperations operations = Operations<Container>::make();

template <class T> constexpr bool isPlain = !std::is_void_v<typename PlainForm<T>::Type>;

template <class T> constexpr Form formOf()
{
    if constexpr (isPlain<T>) {
        // The tables read and write such a value as its plain form.
        static_assert(std::is_trivially_copyable_v<T> && sizeof(T) == sizeof(typename PlainForm<T>::Type));
        return formOf<typename PlainForm<T>::Type>();
    } else if constexpr (std::is_same_v<T, bool>) {
        return Form::Boolean;
    } else if constexpr (std::is_enum_v<T>) {
        static_assert(std::is_same_v<std::underlying_type_t<T>, std::int32_t>, "archived as 32 bits with a sign");
        return Form::Int32;
    } else if constexpr (std::is_same_v<T, std::int32_t>) {
        return Form::Int32;
    } else if constexpr (std::is_same_v<T, std::uint32_t>) {
        return Form::UInt32;
    } else if constexpr (std::is_same_v<T, std::int64_t>) {
        return Form::Int64;
    } else if constexpr (std::is_same_v<T, double>) {
        return Form::Double;
    } else if constexpr (std::is_same_v<T, QString>) {
        return Form::Text;
    } else if constexpr (std::is_same_v<T, std::string>) {
        return Form::Bytes;
    } else if constexpr (IsArray<T>::value) {
        return Form::Doubles;
    } else if constexpr (IsOptional<T>::value) {
        return Form::OptionalRecord;
    } else if constexpr (IsDeque<T>::value) {
        return IsOwningPointer<typename T::value_type>::value ? Form::Objects : Form::Records;
    } else {
        static_assert(std::is_base_of_v<ISerializable, T>, "no archive has a form for this type");
        return Form::Record;
    }
}

template <class T> constexpr Layout const * recordOf()
{
    if constexpr (formOf<T>() == Form::Record)
        return Access::layout<T>();
    else if constexpr (formOf<T>() == Form::OptionalRecord || formOf<T>() == Form::Records)
        return Access::layout<typename T::value_type>();
    else
        return nullptr;
}

template <class T> constexpr std::uint8_t numbersIn()
{
    if constexpr (IsArray<T>::value) {
        static_assert(std::is_same_v<typename T::value_type, double>);
        return std::tuple_size_v<T>;
    } else {
        return 0;
    }
}

template <class T> constexpr ContainerOperations const * operationsOf()
{
    if constexpr (IsOptional<T>::value || IsDeque<T>::value)
        return &operations<T>;
    else
        return nullptr;
}

} // namespace Detail
/// @endcond

/// The row of a member of `Class`, which may be one that it inherits: `layoutOf<Crop, &Crop::transform>("transform")`.
template <class Class, auto Member> constexpr FieldLayout layoutOf(char const * key)
{
    using Value = std::remove_reference_t<decltype(std::declval<Class &>().*Member)>;
    return {key, Detail::formOf<Value>(), Detail::numbersIn<Value>(), &Detail::addressOf<Class, Member>,
        Detail::recordOf<Value>(), Detail::operationsOf<Value>()};
}

/// @cond
namespace Detail {

template <std::size_t length> struct Literal
{
    char text[length + 1]{};

    constexpr Literal(std::initializer_list<std::string_view> parts)
    {
        std::size_t end = 0;
        for (std::string_view const part : parts)
            for (char const unit : part)
                text[end++] = unit;
    }
};

constexpr bool needsNoEscape(std::string_view text)
{
    for (char const unit : text)
        if (unit < ' ' || unit > '~' || unit == '"' || unit == '\\')
            return false;
    return true;
}

/// The tables of one class. `Source` describes it:
///
///   - `Class`, the class itself
///   - `name()`, its archive name, and `hasClassInformation`
///   - `baseName()` and `base()`, of its base in the archives; null without one
///   - `fields()`, an array of `FieldLayout`
///   - `newHasOptional`, a function or null
template <class Source> struct Tables
{
    static constexpr auto fields = Source::fields();
    // Sanitizers do not take the comparison of an address, `base()`, for a constant.
    static constexpr std::size_t baseCount = Source::baseName() ? 1 : 0;
    static constexpr std::size_t keyCount = baseCount + fields.size();

    static constexpr std::string_view key(std::size_t index)
    {
        return index < baseCount ? Source::baseName() : fields[index - baseCount].key;
    }

    static constexpr std::array<std::size_t, keyCount> sort()
    {
        std::array<std::size_t, keyCount> sorted{};
        for (std::size_t index = 0; index < keyCount; ++index) {
            std::size_t place = index;
            for (; place > 0 && key(index) < key(sorted[place - 1]); --place)
                sorted[place] = sorted[place - 1];
            sorted[place] = index;
        }
        return sorted;
    }
    static constexpr auto order = sort();

    static constexpr bool areKeysPlain()
    {
        for (std::size_t index = 0; index < keyCount; ++index)
            // The meta object comes first, and two keys alike would be one.
            if (!needsNoEscape(key(index)) || !(key(index) > "$meta") || key(index).size() > 250 ||
                (index > 0 && key(order[index]) == key(order[index - 1])))
                return false;
        return true;
    }
    template <std::size_t index> static constexpr Literal<key(index).size() + 4> literal{{",\"", key(index), "\":"}};

    template <std::size_t index> static constexpr KeyLayout makeKey()
    {
        return {literal<index>.text, sizeof(literal<index>.text) - 1,
            index < baseCount ? nullptr : &fields[index - baseCount]};
    }
    template <std::size_t... index>
    static constexpr std::array<KeyLayout, keyCount> makeKeys(std::index_sequence<index...>)
    {
        return {makeKey<order[index]>()...};
    }
    static constexpr auto keys = makeKeys(std::make_index_sequence<keyCount>());

    static constexpr std::string_view headStart = Source::hasClassInformation ? "{\"$meta\":{\"class\":\"" : "{";
    static constexpr std::string_view headName = Source::hasClassInformation ? Source::name() : "";
    static constexpr std::string_view headEnd = Source::hasClassInformation ? "\"}" : "";
    static constexpr std::size_t headLength = headStart.size() + headName.size() + headEnd.size();
    static constexpr Literal<headLength> head{{headStart, headName, headEnd}};

    static constexpr std::size_t textSize()
    {
        constexpr std::size_t number = 32; // longer than any
        std::size_t size = headLength + 2;
        for (std::size_t index = 0; index < keyCount; ++index)
            size += key(index).size() + 4 + number;
        for (FieldLayout const & field : fields)
            size += field.count * number;
        return size;
    }

    static constexpr Layout make()
    {
        static_assert(keyCount <= 64, "the JSON reader keeps a bit for each key");
        static_assert(areKeysPlain() && needsNoEscape(Source::name()) && textSize() <= maxTextSize);
        return {Source::name(), &typeid(typename Source::Class), Source::hasClassInformation, Source::base(),
            fields.data(), fields.size(), keys.data(), keys.size(), head.text, headLength,
            static_cast<std::uint16_t>(textSize()), Source::newHasOptional};
    }
};

} // namespace Detail
/// @endcond

/// The layout of a class that is described as `Detail::Tables` says. Constant.
template <class Source> constexpr Layout makeLayout()
{
    return Detail::Tables<Source>::make();
}

/// Describes a class without a base by these members under these keys, an array with a key for each.
template <class Described, bool information, auto const & keys, auto... Members> struct LayoutSource
{
    using Class = Described;
    static_assert(std::size(keys) == sizeof...(Members));

    static constexpr bool hasClassInformation = information;
    static constexpr bool (*newHasOptional)() = nullptr;
    static constexpr char const * name() { return Class::NameInArchive(); }
    static constexpr char const * baseName() { return nullptr; }
    static constexpr Layout const * base() { return nullptr; }
    static constexpr auto fields() { return fields(std::make_index_sequence<sizeof...(Members)>()); }

private:
    template <std::size_t... index> static constexpr auto fields(std::index_sequence<index...>)
    {
        return std::array<FieldLayout, sizeof...(Members)>{layoutOf<Class, Members>(keys[index])...};
    }
};

} // namespace Serialize
