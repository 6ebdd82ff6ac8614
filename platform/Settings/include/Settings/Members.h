/// @file
/// Macros that declare the members of a settings class:
/// @code
/// class SETTINGS_EXPORT SettingsEffectTwirl final : public Settings
/// {
///     SETTINGS_CLASS(SettingsEffectTwirl)
///     SETTING(Params, double, double, double, double) // SetParams, and GetParams for a tuple
///     SETTING(Intensity, float)                       // SetIntensity, and GetIntensity for a float
///     SETTINGS_FIELD(type, Type)                      // a public data member
/// };
/// @endcode
/// One source of the library lists the data members, in the order of their declaration:
/// @code
/// SETTINGS_DEFINE(SettingsEffectTwirl, m_Params, m_Intensity, type)
/// @endcode
/// Comparison, tracing and reading follow from the list, which does not compile unless it is complete.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <Settings/Settings.h>

namespace Quoril::Proc {

/// @cond
/// Holds a value without operator==: copies share it and are equal, separately constructed ones are not.
template <class T> class Shared
{
public:
    Shared() = default; ///< a value-initialised T, equal to any other such
    Shared(T value)
        : m_value(std::make_shared<T const>(std::move(value)))
    {}

    operator T() const { return m_value ? *m_value : T(); }
    friend bool operator==(Shared const & a, Shared const & b) { return a.m_value == b.m_value; }

private:
    std::shared_ptr<T const> m_value;
};

/// The stored type of an argument: the argument's own, but a shared handle for functions, which have no operator==.
template <class T> struct KeptAs
{
    using Type = T;
};
template <class Signature> struct KeptAs<std::vector<std::function<Signature>>>
{
    using Type = Shared<std::vector<std::function<Signature>>>;
};

/// The arguments of the last call of a setter, if it was called.
template <class... Parameters> struct Setting
{
    using Arguments = std::tuple<typename KeptAs<std::decay_t<Parameters>>::Type...>;
    using Values = std::tuple<std::decay_t<Parameters>...>;
    /// What the getter returns: the argument of a setter that takes one, a tuple for one that takes several.
    using Result = std::conditional_t<sizeof...(Parameters) == 1, std::tuple_element_t<0, Values>, Values>;

    Arguments arguments{};
    bool isGiven = false;

    void give(Parameters... parameters)
    {
        arguments = Arguments(std::forward<Parameters>(parameters)...);
        isGiven = true;
    }

    Result get() const
    {
        if constexpr (sizeof...(Parameters) == 1) {
            return std::get<0>(arguments);
        } else {
            return arguments;
        }
    }
};
/// @endcond

} // namespace Quoril::Proc

/// First in a settings class that others derive from. What follows is public.
#define SETTINGS_BASE(Class)                                                                                           \
private:                                                                                                               \
    friend class MemberTable;                                                                                          \
                                                                                                                       \
public:

/// First in a settings class. What follows is public.
#define SETTINGS_CLASS(Class)                                                                                          \
public:                                                                                                                \
    std::unique_ptr<Settings> Clone() const override;                                                                  \
    std::string GetClassId() const override;                                                                           \
                                                                                                                       \
private:                                                                                                               \
    MemberTable const & members() const override;                                                                      \
    SETTINGS_BASE(Class)

/// The setter `Set<Name>` with parameters of the types that follow the name, and the getter `Get<Name>`, which returns
/// value-initialised values until the setter is called.
#define SETTING(Name, ...)                                                                                             \
    void Set##Name(SETTINGS_PARAMETERS(__VA_ARGS__))                                                                   \
    {                                                                                                                  \
        m_##Name.give(SETTINGS_ARGUMENTS(__VA_ARGS__));                                                                \
        traceCall(#Name);                                                                                              \
    }                                                                                                                  \
    Setting<__VA_ARGS__>::Result Get##Name() const                                                                     \
    {                                                                                                                  \
        return m_##Name.get();                                                                                         \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    Setting<__VA_ARGS__> m_##Name;                                                                                     \
                                                                                                                       \
public:

/// The public data member `name` of the type that follows; it starts value-initialised.
#define SETTINGS_FIELD(name, ...) __VA_ARGS__ name{};

/// @cond
// A parameter list and its forwarding from a list of types.
#define SETTINGS_SELECT(_1, _2, _3, _4, _5, _6, chosen, ...) chosen
#define SETTINGS_PARAMETERS(...)                                                                                       \
    SETTINGS_SELECT(__VA_ARGS__, SETTINGS_PARAMETERS_6, SETTINGS_PARAMETERS_5, SETTINGS_PARAMETERS_4,                  \
        SETTINGS_PARAMETERS_3, SETTINGS_PARAMETERS_2, SETTINGS_PARAMETERS_1, )                                         \
    (__VA_ARGS__)
#define SETTINGS_PARAMETERS_1(A) A a
#define SETTINGS_PARAMETERS_2(A, B) A a, B b
#define SETTINGS_PARAMETERS_3(A, B, C) A a, B b, C c
#define SETTINGS_PARAMETERS_4(A, B, C, D) A a, B b, C c, D d
#define SETTINGS_PARAMETERS_5(A, B, C, D, E) A a, B b, C c, D d, E e
#define SETTINGS_PARAMETERS_6(A, B, C, D, E, F) A a, B b, C c, D d, E e, F f
#define SETTINGS_ARGUMENTS(...)                                                                                        \
    SETTINGS_SELECT(__VA_ARGS__, SETTINGS_ARGUMENTS_6, SETTINGS_ARGUMENTS_5, SETTINGS_ARGUMENTS_4,                     \
        SETTINGS_ARGUMENTS_3, SETTINGS_ARGUMENTS_2, SETTINGS_ARGUMENTS_1, )                                            \
    (__VA_ARGS__)
#define SETTINGS_ARGUMENTS_1(A) std::forward<A>(a)
#define SETTINGS_ARGUMENTS_2(A, B) SETTINGS_ARGUMENTS_1(A), std::forward<B>(b)
#define SETTINGS_ARGUMENTS_3(A, B, C) SETTINGS_ARGUMENTS_2(A, B), std::forward<C>(c)
#define SETTINGS_ARGUMENTS_4(A, B, C, D) SETTINGS_ARGUMENTS_3(A, B, C), std::forward<D>(d)
#define SETTINGS_ARGUMENTS_5(A, B, C, D, E) SETTINGS_ARGUMENTS_4(A, B, C, D), std::forward<E>(e)
#define SETTINGS_ARGUMENTS_6(A, B, C, D, E, F) SETTINGS_ARGUMENTS_5(A, B, C, D, E), std::forward<F>(f)
/// @endcond
