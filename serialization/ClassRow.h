/// @file
/// The classes of a family as `Effect::Schema` reads them.
#pragma once

#include <array>
#include <cstddef>
#include <tuple>
#include <typeinfo>
#include <utility>

#include <EditorSerialization/Layout.h>
#include <effects/Parameter.h>

namespace Effect::Schema {

/// A class as it describes itself. Constant, and made by the compiler.
struct ClassRow
{
    Serialize::Layout const * layout;
    std::type_info const & (*type)();
    bool (*isInstance)(Serialize::ISerializable const & object); ///< of the class or of one that derives from it
    char const * text;
    ParameterTraits const * traits; ///< one for each field of the layout
    Inherited const * adjusted;     ///< fields of `Effect::Object`
    std::size_t adjustedCount;
};

/// The classes of a family.
struct ClassRows
{
    ClassRow const * const * rows;
    std::size_t count;

    ClassRow const * const * begin() const { return rows; }
    ClassRow const * const * end() const { return rows + count; }
};

/// @{
/// Each family has a function `rowsOfBlur()`, which its source in serialization/ defines.
#define EXPORTED_FAMILY(family) ClassRows rowsOf##family();
#define HIDDEN_FAMILY(family) ClassRows rowsOf##family();
#include <effects/Families.def>
/// @}

namespace Detail {

template <class Items, class Element, std::size_t... Index>
constexpr std::array<Element, sizeof...(Index)> toArray(Items const & items, std::index_sequence<Index...>)
{
    return {static_cast<Element const &>(std::get<Index>(items))...};
}

template <class Element, class... Items> constexpr auto toArray(std::tuple<Items...> const & items)
{
    return toArray<std::tuple<Items...>, Element>(items, std::index_sequence_for<Items...>());
}

template <class Class> inline constexpr auto traitsOf = toArray<ParameterTraits>(Class::describe().own);
template <class Class> inline constexpr auto adjustedOf = toArray<Inherited>(Class::describe().adjusted);

} // namespace Detail

template <class Class> constexpr ClassRow makeRow()
{
    return {Serialize::Access::layout<Class>(), []() -> std::type_info const & { return typeid(Class); },
        [](Serialize::ISerializable const & object) { return dynamic_cast<Class const *>(&object) != nullptr; },
        Class::describe().text, Detail::traitsOf<Class>.data(), Detail::adjustedOf<Class>.data(),
        Detail::adjustedOf<Class>.size()};
}

template <class Class> inline constexpr ClassRow classRow = makeRow<Class>();

} // namespace Effect::Schema
