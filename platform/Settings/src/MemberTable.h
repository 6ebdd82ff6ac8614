/// @file
/// The table behind each settings class: its members in the order of their declaration.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <tuple>
#include <utility>

#include "Form.h"

#include <Settings/Members.h>

namespace Quoril::Proc {

template <class T> inline constexpr bool isSetting = false;
template <class... Parameters> inline constexpr bool isSetting<Setting<Parameters...>> = true;

/// Told as the list of its arguments; read from that list, but from the argument itself where there is one.
template <class... Parameters> struct Form<Setting<Parameters...>>
{
    using Given = Setting<Parameters...>;
    using Arguments = typename Given::Arguments;

    static Value tell(Given const & setting) { return Form<Arguments>::tell(setting.arguments); }
    static bool read(Value const & value, Given & setting)
    {
        setting.isGiven = true;
        if constexpr (sizeof...(Parameters) == 1) {
            return Form<std::tuple_element_t<0, Arguments>>::read(value, std::get<0>(setting.arguments));
        } else {
            return Form<Arguments>::read(value, setting.arguments);
        }
    }
    static bool same(Given const & a, Given const & b)
    {
        return a.isGiven == b.isGiven && Form<Arguments>::same(a.arguments, b.arguments);
    }
    static std::string expected()
    {
        if constexpr (sizeof...(Parameters) == 1) {
            return Form<std::tuple_element_t<0, Arguments>>::expected();
        } else {
            return Form<Arguments>::expected();
        }
    }
};

/// A setting or a public data member, reached through the base of its class.
struct Member
{
    char const * name; ///< "Scale" for SetScale
    bool isField;      ///< a public data member, not a setting

    bool (*isGiven)(Settings const &); ///< a data member: whether it differs from how it starts
    bool (*isSame)(Settings const &, Settings const &);
    Value (*tell)(Settings const &); ///< a setting: the list of its arguments
    bool (*read)(Value const &, Settings &);
    std::string (*expected)();
};

class MemberTable
{
public:
    constexpr MemberTable() = default;
    constexpr MemberTable(Member const * first, std::size_t count)
        : m_first(first)
        , m_count(count)
    {}

    Member const * begin() const { return m_first; }
    Member const * end() const { return m_first + m_count; }
    Member const * find(std::string const & name) const;

    /// The table of a class, built by the compiler.
    template <class Class> static MemberTable const & of()
    {
        static constexpr auto members = collect<Class>(std::make_integer_sequence<int, maxMemberLines + 1>());
        static constexpr MemberTable table(members.data(), members.size());
        return table;
    }

private:
    template <class Class, int line, class Slot = decltype(Class::slot(std::integral_constant<int, line>()))>
    static constexpr bool hasMember(std::integral_constant<int, line>)
    {
        return true;
    }
    template <class Class> static constexpr bool hasMember(...) { return false; }

    template <class Class, int... line> static constexpr auto collect(std::integer_sequence<int, line...>)
    {
        constexpr std::size_t count = (std::size_t{0} + ... + hasMember<Class>(std::integral_constant<int, line>()));
        std::array<Member, count> members{};
        [[maybe_unused]] std::size_t next = 0;
        (append<Class, line>(members, next), ...);
        return members;
    }

    template <class Class, int line, std::size_t count>
    static constexpr void append(
        [[maybe_unused]] std::array<Member, count> & members, [[maybe_unused]] std::size_t & next)
    {
        constexpr std::integral_constant<int, line> here;
        if constexpr (hasMember<Class>(here)) {
            members[next++] = entry(Class::slot(here));
        }
    }

    template <auto pointer> struct Access;

    template <auto pointer> static constexpr Member entry(MemberSlot<pointer> slot)
    {
        using A = Access<pointer>;
        return {slot.name, A::isField, &A::isGiven, &A::isSame, &A::tell, &A::read, &A::expected};
    }

    Member const * m_first = nullptr;
    std::size_t m_count = 0;
};

template <class Class, class T, T Class::*pointer> struct MemberTable::Access<pointer>
{
    static constexpr bool isField = !isSetting<T>;

    static T const & in(Settings const & settings) { return static_cast<Class const &>(settings).*pointer; }

    static bool isGiven(Settings const & settings) { return !Form<T>::same(in(settings), T{}); }
    static bool isSame(Settings const & a, Settings const & b) { return Form<T>::same(in(a), in(b)); }
    static Value tell(Settings const & settings) { return Form<T>::tell(in(settings)); }
    static bool read(Value const & value, Settings & settings)
    {
        return Form<T>::read(value, static_cast<Class &>(settings).*pointer);
    }
    static std::string expected() { return Form<T>::expected(); }
};

} // namespace Quoril::Proc

/// What SETTINGS_CLASS declares.
#define SETTINGS_DEFINE(Class)                                                                                         \
    std::unique_ptr<Settings> Class::Clone() const                                                                     \
    {                                                                                                                  \
        return std::make_unique<Class>(*this);                                                                         \
    }                                                                                                                  \
    std::string Class::GetClassId() const                                                                              \
    {                                                                                                                  \
        return #Class;                                                                                                 \
    }                                                                                                                  \
    MemberTable const & Class::members() const                                                                         \
    {                                                                                                                  \
        return MemberTable::of<Class>();                                                                               \
    }
