/// @file
/// The value form of each type that a setting or a public data member can have: how it is converted to a value, read
/// and compared.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <Settings/Settings.h>
#include <Settings/Value.h>
#include <Utils/Matrix3x3.h>

namespace Quoril::Proc {

/// For a type T:
/// - `Value toValue(T const &)`;
/// - `bool read(Value const &, T &)`, false when the value is no T, which may then hold anything;
/// - `bool same(T const &, T const &)`;
/// - `std::string expected()`, what `read` takes, for messages.
template <class T, class = void> struct Form;

/// A small record: specialise with `template <class R> static auto of(R & record)`, which ties its members. It is
/// converted as the list of them.
template <class T> struct Parts;

/// For handles, which compare by identity, and which only code can give.
template <class T> struct HandleForm
{
    static bool read(Value const &, T &) { return false; }
    static bool same(T const & a, T const & b) { return a == b; }
};

template <> struct Form<bool>
{
    static Value toValue(bool on) { return on; }
    static bool read(Value const & value, bool & on)
    {
        auto const * given = value.as<bool>();
        return given != nullptr && (on = *given, true);
    }
    static bool same(bool a, bool b) { return a == b; }
    static std::string expected() { return "a boolean"; }
};

template <class T> struct Form<T, std::enable_if_t<std::is_integral_v<T>>>
{
    // The part of the type's range that a Value can say.
    static constexpr std::int64_t lowest = static_cast<std::int64_t>(std::numeric_limits<T>::min());
    static constexpr std::int64_t highest = sizeof(T) == sizeof(std::int64_t)
                                                ? std::numeric_limits<std::int64_t>::max()
                                                : static_cast<std::int64_t>(std::numeric_limits<T>::max());

    static Value toValue(T number) { return number; }
    static bool read(Value const & value, T & number)
    {
        auto const * given = value.as<std::int64_t>();
        return given != nullptr && *given >= lowest && *given <= highest && (number = static_cast<T>(*given), true);
    }
    static bool same(T a, T b) { return a == b; }
    static std::string expected()
    {
        return "an integer from " + std::to_string(lowest) + " to " + std::to_string(highest);
    }
};

template <class T> struct Form<T, std::enable_if_t<std::is_floating_point_v<T>>>
{
    static Value toValue(T number) { return static_cast<double>(number); }
    static bool read(Value const & value, T & number)
    {
        if (auto const * given = value.as<std::int64_t>()) {
            number = static_cast<T>(*given);
            return true;
        }
        auto const * given = value.as<double>();
        return given != nullptr && (number = static_cast<T>(*given), true);
    }
    // A copy that holds a NaN is still equal to its source.
    static bool same(T a, T b) { return a == b || (a != a && b != b); }
    static std::string expected() { return "a number"; }
};

template <class T> struct Form<T, std::enable_if_t<std::is_enum_v<T>>>
{
    using Number = std::underlying_type_t<T>;

    static Value toValue(T enumerator) { return static_cast<Number>(enumerator); }
    static bool read(Value const & value, T & enumerator)
    {
        Number number{};
        return Form<Number>::read(value, number) && (enumerator = static_cast<T>(number), true);
    }
    static bool same(T a, T b) { return a == b; }
    static std::string expected() { return Form<Number>::expected(); }
};

template <> struct Form<std::string>
{
    static Value toValue(std::string const & text) { return text; }
    static bool read(Value const & value, std::string & text)
    {
        auto const * given = value.as<std::string>();
        return given != nullptr && (text = *given, true);
    }
    static bool same(std::string const & a, std::string const & b) { return a == b; }
    static std::string expected() { return "a string"; }
};

template <class T> struct Form<std::optional<T>>
{
    static Value toValue(std::optional<T> const & optional) { return optional ? Form<T>::toValue(*optional) : Value(); }
    static bool read(Value const & value, std::optional<T> & optional)
    {
        if (value.as<std::nullptr_t>() != nullptr) {
            optional.reset();
            return true;
        }
        return Form<T>::read(value, optional.emplace());
    }
    static bool same(std::optional<T> const & a, std::optional<T> const & b)
    {
        return a && b ? Form<T>::same(*a, *b) : a.has_value() == b.has_value();
    }
    static std::string expected() { return "null or " + Form<T>::expected(); }
};

template <class T> struct Form<std::vector<T>>
{
    static Value toValue(std::vector<T> const & elements)
    {
        Value::List list;
        list.reserve(elements.size());
        for (T const & element : elements) {
            list.push_back(Form<T>::toValue(element));
        }
        return list;
    }
    static bool read(Value const & value, std::vector<T> & elements)
    {
        auto const * list = value.as<Value::List>();
        if (list == nullptr) {
            return false;
        }
        elements.clear();
        for (Value const & entry : *list) {
            if (!Form<T>::read(entry, elements.emplace_back())) {
                return false;
            }
        }
        return true;
    }
    static bool same(std::vector<T> const & a, std::vector<T> const & b)
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(), &Form<T>::same);
    }
    static std::string expected() { return "a list, each entry " + Form<T>::expected(); }
};

/// A tuple, of values or of references to them.
template <class... T> struct Form<std::tuple<T...>>
{
    using Tuple = std::tuple<T...>;
    template <class Member> using FormOf = Form<std::decay_t<Member>>;

    static Value toValue(Tuple const & tuple)
    {
        return std::apply(
            [](auto const &... member) { return Value::List{FormOf<decltype(member)>::toValue(member)...}; }, tuple);
    }
    static bool read(Value const & value, Tuple & tuple)
    {
        auto const * list = value.as<Value::List>();
        return list != nullptr && list->size() == sizeof...(T) &&
               readEach(*list, tuple, std::index_sequence_for<T...>());
    }
    static bool same(Tuple const & a, Tuple const & b) { return sameEach(a, b, std::index_sequence_for<T...>()); }
    static std::string expected()
    {
        std::string text;
        ((text += text.empty() ? "a list (" : ", ", text += FormOf<T>::expected()), ...);
        return text + ")";
    }

private:
    template <std::size_t... index>
    static bool readEach(Value::List const & list, Tuple & tuple, std::index_sequence<index...>)
    {
        return (FormOf<T>::read(list[index], std::get<index>(tuple)) && ...);
    }
    template <std::size_t... index>
    static bool sameEach(Tuple const & a, Tuple const & b, std::index_sequence<index...>)
    {
        return (FormOf<T>::same(std::get<index>(a), std::get<index>(b)) && ...);
    }
};

template <class T> struct Form<T, std::void_t<decltype(Parts<T>::of(std::declval<T &>()))>>
{
    static Value toValue(T const & record) { return form(Parts<T>::of(record)); }
    static bool read(Value const & value, T & record)
    {
        auto members = Parts<T>::of(record);
        return Form<decltype(members)>::read(value, members);
    }
    static bool same(T const & a, T const & b)
    {
        auto const members = Parts<T>::of(a);
        return Form<std::decay_t<decltype(members)>>::same(members, Parts<T>::of(b));
    }
    static std::string expected() { return Form<decltype(Parts<T>::of(std::declval<T &>()))>::expected(); }

private:
    template <class Tuple> static Value form(Tuple const & members) { return Form<Tuple>::toValue(members); }
};

template <class T, std::size_t size> struct Parts<std::array<T, size>>
{
    template <class Array> static auto of(Array & array)
    {
        return std::apply([](auto &... entry) { return std::tie(entry...); }, array);
    }
};

template <> struct Form<Core::Matrix3x3>
{
    using Entries = Form<std::array<double, 9>>;

    static Value toValue(Core::Matrix3x3 const & matrix) { return Entries::toValue(matrix.entries()); }
    static bool read(Value const & value, Core::Matrix3x3 & matrix)
    {
        std::array<double, 9> entries{};
        if (!Entries::read(value, entries)) {
            return false;
        }
        for (std::size_t index = 0; index < entries.size(); ++index) {
            matrix[index] = entries[index];
        }
        return true;
    }
    static bool same(Core::Matrix3x3 const & a, Core::Matrix3x3 const & b)
    {
        return Entries::same(a.entries(), b.entries());
    }
    static std::string expected() { return Entries::expected(); }
};

/// The settings object as Trace::describe returns it, with the calls recorded by any open trace of this thread.
Value describeTraced(Settings const & settings);

/// A settings object as an argument of another's setter.
template <class T> struct Form<T, std::enable_if_t<std::is_base_of_v<Settings, T>>>
{
    static Value toValue(T const & settings) { return describeTraced(settings); }
    static bool read(Value const & value, T & settings)
    {
        auto const * record = value.as<Value::Object>();
        return record != nullptr && (settings.Deserialize(*record), true);
    }
    static bool same(T const & a, T const & b) { return a.IsEqualTo(b); }
    static std::string expected() { return "an object"; }
};

} // namespace Quoril::Proc
