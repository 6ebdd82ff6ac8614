/// @file
/// The table behind each settings class: its members in the order of their declaration.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <tuple>

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

    static Value toValue(Given const & setting) { return Form<Arguments>::toValue(setting.arguments); }
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
    Value (*toValue)(Settings const &); ///< a setting: the list of its arguments
    bool (*read)(Value const &, Settings &);
    std::string (*expected)();
};

class MemberTable
{
public:
    constexpr MemberTable() = default;
    /// Refers to the members, which are to outlive it.
    template <std::size_t count>
    constexpr explicit MemberTable(std::array<Member, count> const & members)
        : m_first(members.data())
        , m_count(count)
    {}

    Member const * begin() const { return m_first; }
    Member const * end() const { return m_first + m_count; }
    Member const * find(std::string const & name) const;

    /// The members of a class; SETTINGS_DEFINE makes one for each.
    template <class Class> struct ListOf;

private:
    template <auto pointer> struct Access;

    /// @param name  of the data member: "m_Scale" for the setting "Scale"
    template <auto pointer> static constexpr Member entry(char const * name)
    {
        using A = Access<pointer>;
        constexpr std::size_t prefix = A::isField ? 0 : std::char_traits<char>::length("m_");
        return {name + prefix, A::isField, &A::isGiven, &A::isSame, &A::toValue, &A::read, &A::expected};
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
    static Value toValue(Settings const & settings) { return Form<T>::toValue(in(settings)); }
    static bool read(Value const & value, Settings & settings)
    {
        return Form<T>::read(value, static_cast<Class &>(settings).*pointer);
    }
    static std::string expected() { return Form<T>::expected(); }
};

} // namespace Quoril::Proc

/// What SETTINGS_CLASS declares. The data members of the class follow, 16 at most, in the order of their declaration.
#define SETTINGS_DEFINE(Class, ...)                                                                                    \
    template <> struct MemberTable::ListOf<Class>                                                                      \
    {                                                                                                                  \
        static constexpr std::array members{SETTINGS_MEMBERS(Class, __VA_ARGS__)};                                     \
        /* Compiles only with a name for each data member, so that none is forgotten. */                               \
        static void isComplete(Class const & object) { [[maybe_unused]] auto const & [__VA_ARGS__] = object; }         \
    };                                                                                                                 \
    SETTINGS_DEFINE_CLASS(Class, MemberTable(MemberTable::ListOf<Class>::members))

/// The same for a class without data members.
#define SETTINGS_DEFINE_EMPTY(Class)                                                                                   \
    static_assert(sizeof(Class) == sizeof(Settings), "it has data members");                                           \
    SETTINGS_DEFINE_CLASS(Class, MemberTable())

/// @cond
#define SETTINGS_DEFINE_CLASS(Class, theTable)                                                                         \
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
        static constexpr MemberTable table = theTable;                                                                 \
        return table;                                                                                                  \
    }

#define SETTINGS_MEMBERS(Class, ...)                                                                                   \
    SETTINGS_SELECT_MEMBERS(__VA_ARGS__, SETTINGS_MEMBERS_16, SETTINGS_MEMBERS_15, SETTINGS_MEMBERS_14,                \
        SETTINGS_MEMBERS_13, SETTINGS_MEMBERS_12, SETTINGS_MEMBERS_11, SETTINGS_MEMBERS_10, SETTINGS_MEMBERS_9,        \
        SETTINGS_MEMBERS_8, SETTINGS_MEMBERS_7, SETTINGS_MEMBERS_6, SETTINGS_MEMBERS_5, SETTINGS_MEMBERS_4,            \
        SETTINGS_MEMBERS_3, SETTINGS_MEMBERS_2, SETTINGS_MEMBERS_1, )                                                  \
    (Class, __VA_ARGS__)
#define SETTINGS_SELECT_MEMBERS(_1, _2, _3, _4, _5, _6, _7, _8, _9, _10, _11, _12, _13, _14, _15, _16, chosen, ...)    \
    chosen
#define SETTINGS_MEMBERS_1(Class, name) entry<&Class::name>(#name)
#define SETTINGS_MEMBERS_2(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_1(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_3(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_2(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_4(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_3(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_5(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_4(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_6(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_5(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_7(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_6(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_8(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_7(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_9(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_8(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_10(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_9(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_11(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_10(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_12(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_11(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_13(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_12(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_14(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_13(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_15(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_14(Class, __VA_ARGS__)
#define SETTINGS_MEMBERS_16(Class, name, ...) SETTINGS_MEMBERS_1(Class, name), SETTINGS_MEMBERS_15(Class, __VA_ARGS__)
/// @endcond
