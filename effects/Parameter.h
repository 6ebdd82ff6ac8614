/// @file
/// How a class describes its fields: once, for the archives, the engine's limits, the panels of an editor and the
/// documents.
///
/// ```cpp
/// static constexpr auto describe()
/// {
///     return description("Keeps a band of the picture sharp and blurs what lies above and below it.",
///         readsIntensity(), parameter("smns", &TiltShift::smns).label("Softness").text("Width of the
///         transition").suggest(0, 1));
/// }
/// ```
///
/// At run time, ask `Effect::Schema` for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>

namespace Effect {

/// What the conversion makes of a number beyond a parameter's bounds, or of one that is none of its choices.
enum class Beyond : std::uint8_t
{
    Passed,   ///< the engine receives the number itself
    Clamped,  ///< the record is that of the nearer bound
    Nearest,  ///< the record is that of the nearer choice
    Fallback, ///< the record is that of the fallback
    Refused,  ///< loading and setting throw
};

/// Units of parameters, as they are shown.
namespace Unit {
/// @{
/// As its name says; `engine` is known to the render engine alone.
inline constexpr char const * engine = "engine";
inline constexpr char const * hertz = "Hz";
inline constexpr char const * decibels = "dB";
inline constexpr char const * milliseconds = "ms";
inline constexpr char const * microseconds = "µs";
inline constexpr char const * percent = "%";
inline constexpr char const * degrees = "°";
inline constexpr char const * pixels = "px";
inline constexpr char const * octaves = "octaves";
/// @}
} // namespace Unit

/// One value of an enumeration.
struct Choice
{
    std::int32_t value; ///< in the archives
    char const * name;  ///< for command lines and scripts: a word
    char const * label; ///< for people
};

/// A limit that may be absent.
struct Limit
{
    bool isSet = false; ///< whether there is one
    double value = 0;   ///< of the limit, if there is one

    constexpr Limit() = default; ///< none
    /// A limit of that value.
    constexpr Limit(double limit)
        : isSet(true)
        , value(limit)
    {}
};

/// What is known of a parameter besides its key and its type.
struct ParameterTraits
{
    /// @{
    /// See the function of that name in `ParameterBuilder`.
    char const * label = "";
    char const * text = "";
    char const * unit = "";
    Limit minimum;
    Limit maximum;
    Limit suggestedMinimum;
    Limit suggestedMaximum;
    Choice const * choices = nullptr;
    std::size_t choiceCount = 0;
    Beyond beyond = Beyond::Passed;
    Limit fallback;
    bool isColor = false;
    bool isEffective = true;
    /// @}
};

/// The members by which a description is put together; each returns a changed copy.
template <class Self> struct ParameterBuilder : ParameterTraits
{
    /// The name on a panel: a word or three, in sentence case.
    constexpr Self label(char const * value) const { return with(&ParameterTraits::label, value); }
    /// One sentence for the person in front of the slider, without a full stop.
    constexpr Self text(char const * value) const { return with(&ParameterTraits::text, value); }
    /// One of `Unit`.
    constexpr Self unit(char const * value) const { return with(&ParameterTraits::unit, value); }
    /// Hard bounds: those of the conversion or of a format.
    constexpr Self range(Limit least, Limit most) const
    {
        return with(&ParameterTraits::minimum, least).with(&ParameterTraits::maximum, most);
    }
    /// A hard bound below.
    constexpr Self atLeast(double least) const { return with(&ParameterTraits::minimum, Limit(least)); }
    /// A hard bound above.
    constexpr Self atMost(double most) const { return with(&ParameterTraits::maximum, Limit(most)); }
    /// The ends of a slider, where there is a reason for them.
    constexpr Self suggest(double least, double most) const
    {
        return with(&ParameterTraits::suggestedMinimum, Limit(least))
            .with(&ParameterTraits::suggestedMaximum, Limit(most));
    }
    /// The values of an enumeration, in ascending order.
    template <std::size_t count> constexpr Self choices(Choice const (&values)[count]) const
    {
        return with(&ParameterTraits::choices, static_cast<Choice const *>(values))
            .with(&ParameterTraits::choiceCount, count);
    }
    /// What the conversion makes of values beyond the hard bounds, or of a number that is no choice.
    constexpr Self beyond(Beyond value) const { return with(&ParameterTraits::beyond, value); }
    /// Any value beyond counts as this one.
    constexpr Self fallback(double value) const
    {
        return with(&ParameterTraits::fallback, Limit(value)).beyond(Beyond::Fallback);
    }
    /// A packed `0xAARRGGBB`.
    constexpr Self color() const { return with(&ParameterTraits::isColor, true); }
    /// No settings record depends on the parameter.
    constexpr Self ineffective() const { return with(&ParameterTraits::isEffective, false); }

private:
    template <class Value, class Given> constexpr Self with(Value ParameterTraits::*member, Given value) const
    {
        Self copy = static_cast<Self const &>(*this);
        copy.*member = value;
        return copy;
    }
};

/// One field: the key under which it is archived, the member that holds it, and its traits.
template <class Class, class Value> struct Parameter : ParameterBuilder<Parameter<Class, Value>>
{
    char const * key;     ///< in the archives
    Value Class::*member; ///< that holds the value

    /// A field without traits; see `parameter`.
    constexpr Parameter(char const * archiveKey, Value Class::*field)
        : key(archiveKey)
        , member(field)
    {}
};

/// A field. Keys are on disk and never change, whatever becomes of the member's name.
template <class Class, class Value> constexpr Parameter<Class, Value> parameter(char const * key, Value Class::*member)
{
    return {key, member};
}

/// A field of `Effect::Object` on which the settings record of a class depends, and what the class knows better of it
/// than `Effect::Object` does: texts that are empty and limits that are not set stay as they are there.
struct Inherited : ParameterBuilder<Inherited>
{
    char const * key; ///< in the archives

    /// The field with that key; see `readsIntensity` and its like.
    constexpr explicit Inherited(char const * archiveKey)
        : key(archiveKey)
    {}
};

/// @{
/// The settings record depends on that field of `Effect::Object`. It always depends on the identifier.
constexpr Inherited readsIntensity()
{
    return Inherited("intensity");
}
constexpr Inherited readsResource()
{
    return Inherited("resource");
}
constexpr Inherited readsResourcePath()
{
    return Inherited("resourcePath");
}
/// @}

/// A class: what it does, and its fields.
template <class Own, class Adjusted> struct Description
{
    char const * text; ///< one or two sentences for the person who chooses an effect
    Own own;           ///< tuple of `Parameter`, in the order of the binary archives, which never changes
    Adjusted adjusted; ///< tuple of `Inherited`
};

/// @cond
namespace Detail {

template <class Class, class Value> constexpr auto ownOnly(Parameter<Class, Value> const & item)
{
    return std::make_tuple(item);
}
constexpr std::tuple<> ownOnly(Inherited const &)
{
    return {};
}
template <class Class, class Value> constexpr std::tuple<> inheritedOnly(Parameter<Class, Value> const &)
{
    return {};
}
constexpr auto inheritedOnly(Inherited const & item)
{
    return std::make_tuple(item);
}

} // namespace Detail
/// @endcond

/// @param text   one or two sentences for the person who chooses an effect
/// @param items  the own parameters in the order of the binary archives, and inherited ones anywhere
template <class... Items> constexpr auto description(char const * text, Items const &... items)
{
    auto const own = std::tuple_cat(Detail::ownOnly(items)...);
    auto const adjusted = std::tuple_cat(Detail::inheritedOnly(items)...);
    return Description<std::remove_const_t<decltype(own)>, std::remove_const_t<decltype(adjusted)>>{
        text, own, adjusted};
}

} // namespace Effect
