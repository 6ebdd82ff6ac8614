/// @file
/// A value that a settings object holds or was given, for printing and for reading back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <Settings/Export.h>

namespace Quoril::Proc {

/// Null, a boolean, an integer, a number, a text, a list or an object: what JSON can say. A plain value type.
class SETTINGS_EXPORT Value
{
public:
    using List = std::vector<Value>;                           ///< in order
    using Object = std::vector<std::pair<std::string, Value>>; ///< in the order inserted
    /// One of these.
    using Data = std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, List, Object>;

    Value() noexcept; ///< null
    /// @{
    /// A value of that kind.
    Value(std::nullptr_t) noexcept;
    Value(double number) noexcept;
    Value(char const * text);
    Value(std::string text) noexcept;
    Value(List list) noexcept;
    Value(Object object) noexcept;
    /// @}

    /// A boolean or any integer. What is beyond a signed 64-bit integer becomes the nearest double.
    template <class Integer, std::enable_if_t<std::is_integral_v<Integer>, int> = 0>
    Value(Integer number) noexcept
        : Value(Tag(), wide(number))
    {}

    /// @{
    /// Lists and objects are copied whole; what was moved from is null or of unknown content.
    Value(Value const & other);
    Value(Value && other) noexcept;
    Value & operator=(Value const & other);
    Value & operator=(Value && other) noexcept;
    /// @}
    ~Value();

    Data const & data() const { return m_data; } ///< whichever it is

    /// The value as `Alternative`, one of the types of `Data`; null when it is another.
    template <class Alternative> Alternative const * as() const { return std::get_if<Alternative>(&m_data); }

    /// An object's value under `key`; null when there is none, and for what is no object.
    Value const * find(std::string const & key) const;

    /// For messages and for people, in the manner of JSON, with numbers in the shortest form that is exact.
    std::string toString() const;

    friend bool operator==(Value const & a, Value const & b) { return a.m_data == b.m_data; }
    friend bool operator!=(Value const & a, Value const & b) { return !(a == b); }

private:
    struct Tag
    {};
    Value(Tag, bool on) noexcept;
    Value(Tag, std::int64_t number) noexcept;
    Value(Tag, std::uint64_t number) noexcept;

    template <class Integer> static auto wide(Integer number)
    {
        if constexpr (std::is_same_v<Integer, bool>) {
            return number;
        } else if constexpr (std::is_signed_v<Integer>) {
            return static_cast<std::int64_t>(number);
        } else {
            return static_cast<std::uint64_t>(number);
        }
    }

    Data m_data;
};

/// Names with their values, in order.
using Record = Value::Object;

} // namespace Quoril::Proc
