/// @file
/// What ClassesTest.cpp holds every settings class to.
#pragma once

#include "Printing.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <ParserLUT/LUTTable.h>
#include <Settings/ColorF.h>
#include <Settings/ImageHandler.h>
#include <Settings/SettingsAudio.h>
#include <Settings/SettingsMask.h>
#include <Settings/Trace.h>
#include <Utils/Matrix3x3.h>

namespace SettingsClasses {

using namespace Quoril::Proc;

/// Something other than a value-initialised T, different for each `seed` below 200. No number of it fits a float.
template <class T, class = void> struct Sample;

template <class T> struct Sample<T, std::enable_if_t<std::is_arithmetic_v<T>>>
{
    static T make(int seed)
    {
        if constexpr (std::is_floating_point_v<T>) {
            return static_cast<T>(0.1 + seed);
        } else {
            return static_cast<T>(1 + seed);
        }
    }
};
template <class T> struct Sample<T, std::enable_if_t<std::is_enum_v<T>>>
{
    static T make(int seed) { return static_cast<T>(1 + seed); }
};
template <> struct Sample<std::string>
{
    static std::string make(int seed) { return "text " + std::to_string(seed); }
};
template <> struct Sample<Quoril::Core::Matrix3x3>
{
    static Quoril::Core::Matrix3x3 make(int seed) { return {2.0 + seed, 0.1, 0, 0, 3, 0, 4, 5, 1}; }
};
template <> struct Sample<std::array<std::int64_t, 2>>
{
    static std::array<std::int64_t, 2> make(int seed) { return {1920 + seed, 1080}; }
};
template <> struct Sample<std::optional<ColorF>>
{
    static std::optional<ColorF> make(int seed) { return ColorF{0.1f * static_cast<float>(seed), 0.2f, 0.3f, 1}; }
};
template <> struct Sample<std::shared_ptr<ImageHandler const>>
{
    static std::shared_ptr<ImageHandler const> make(int) { return std::make_shared<ImageHandler>(); }
};
template <> struct Sample<std::shared_ptr<LUT::LUTTable>>
{
    static std::shared_ptr<LUT::LUTTable> make(int) { return std::make_shared<LUT::LUTTable>(); }
};
template <> struct Sample<std::vector<SettingsAudioEqualizer::BandEq>>
{
    static std::vector<SettingsAudioEqualizer::BandEq> make(int seed) { return {{1000, 0.1}, {2000, 0.1 + seed}}; }
};
template <> struct Sample<std::vector<SettingsAudioEcho::Echo>>
{
    static std::vector<SettingsAudioEcho::Echo> make(int seed) { return {{100, 0.1}, {200, 0.1 + seed}}; }
};
template <> struct Sample<std::vector<SettingsEffectMask::FrameFunctor>>
{
    static std::vector<SettingsEffectMask::FrameFunctor> make(int)
    {
        return {[](double) { return std::make_unique<SettingsEffectMask::FrameMask>(); }};
    }
};
template <> struct Sample<SettingsAudioEqualizer>
{
    static SettingsAudioEqualizer make(int seed)
    {
        SettingsAudioEqualizer settings;
        settings.SetIntensity(Sample<float>::make(seed));
        return settings;
    }
};
template <> struct Sample<SettingsAudioPitch>
{
    static SettingsAudioPitch make(int seed)
    {
        SettingsAudioPitch settings;
        settings.SetPitch(Sample<double>::make(seed));
        return settings;
    }
};
template <class... T> struct Sample<std::tuple<T...>>
{
    static std::tuple<T...> make(int seed)
    {
        auto const next = [&seed] { return seed++; };
        return {Sample<T>::make(next())...};
    }
};

/// A setter or a public data member of a class, tested through the class's base.
struct Row
{
    char const * name; ///< a setter's without its prefix
    bool isField;
    bool canBeRead; ///< has a form in a record

    void (*give)(Settings &);              ///< something other than what it starts with
    void (*expectStart)(Settings const &); ///< fails unless it holds what it starts with
    void (*expectGiven)(Settings const &); ///< fails unless it holds what was given
    std::vector<Value> (*recorded)();      ///< a setter's arguments; null for what is tested elsewhere
};

/// Only code can give one: it has no form in a record.
template <class T> inline constexpr bool isHandle = false;
template <class T> inline constexpr bool isHandle<std::shared_ptr<T>> = true;
template <class Signature> inline constexpr bool isHandle<std::vector<std::function<Signature>>> = true;

/// Has an equality to test with.
template <class T>
inline constexpr bool isComparable = std::is_arithmetic_v<T> || std::is_enum_v<T> || std::is_same_v<T, std::string>;
template <class T> inline constexpr bool isComparable<std::shared_ptr<T>> = true;

template <class... T> inline constexpr bool isComparable<std::tuple<T...>> = (isComparable<T> && ...);

/// A mismatch is reported under the name of the row.
template <class T> void expectSame(T const & a, T const & b)
{
    if constexpr (isComparable<T>) {
        EXPECT_TRUE(a == b);
    }
}

/// The value that a number, an enumerator or a text is recorded as; null for all else.
template <class T> Value plain(T const & argument)
{
    if constexpr (std::is_enum_v<T>) {
        return static_cast<int>(argument);
    } else if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, std::string>) {
        return Value(argument);
    } else {
        return {};
    }
}

template <class MemberFunction> struct Signature;
template <class Class, class Result, class... Parameters> struct Signature<Result (Class::*)(Parameters...)>
{
    using Type = Result(Parameters...);
};
template <class Class, class Result, class... Parameters> struct Signature<Result (Class::*)(Parameters...) const>
{
    using Type = Result(Parameters...);
};

/// A setter, which must have the signature `Expected`, and its getter. They may be those of a base of `Class`.
template <class Class, class Expected, auto set, auto get> struct Setter;
template <class Class, class... Parameters, auto set, auto get> struct Setter<Class, void(Parameters...), set, get>
{
    using Arguments = std::tuple<std::decay_t<Parameters>...>;
    using Result = std::conditional_t<sizeof...(Parameters) == 1, std::tuple_element_t<0, Arguments>, Arguments>;
    static_assert(std::is_same_v<typename Signature<decltype(set)>::Type, void(Parameters...)>, "the setter");
    static_assert(std::is_same_v<typename Signature<decltype(get)>::Type, Result()>, "the getter");

    static constexpr bool canBeRead =
        !(isHandle<std::decay_t<Parameters>> || ...) && !(std::is_base_of_v<Settings, std::decay_t<Parameters>> || ...);

    static Arguments const & sample()
    {
        static Arguments const arguments = Sample<Arguments>::make(0);
        return arguments;
    }

    static void give(Settings & settings)
    {
        std::apply([&](auto const &... argument) { (static_cast<Class &>(settings).*set)(argument...); }, sample());
    }
    static void expect(Settings const & settings, Arguments const & arguments)
    {
        auto const held = (static_cast<Class const &>(settings).*get)();
        if constexpr (sizeof...(Parameters) == 1) {
            expectSame(held, std::get<0>(arguments));
        } else {
            expectSame(held, arguments);
        }
    }
    static void expectStart(Settings const & settings) { expect(settings, Arguments{}); }
    static void expectGiven(Settings const & settings) { expect(settings, sample()); }
    static std::vector<Value> recorded()
    {
        return std::apply([](auto const &... argument) { return std::vector<Value>{plain(argument)...}; }, sample());
    }

    static constexpr Row row(char const * name)
    {
        return {name, false, canBeRead, &give, &expectStart, &expectGiven, &recorded};
    }
};

/// A public data member, which must be of the type `T`.
template <class Class, class T, T Class::*member> struct Field
{
    static void give(Settings & settings) { static_cast<Class &>(settings).*member = Sample<T>::make(0); }
    static void expect(Settings const & settings, T const & value)
    {
        EXPECT_TRUE(static_cast<Class const &>(settings).*member == value);
    }
    static void expectStart(Settings const & settings) { expect(settings, T{}); }
    static void expectGiven(Settings const & settings) { expect(settings, Sample<T>::make(0)); }

    static constexpr Row row(char const * name)
    {
        return {name, true, true, &give, &expectStart, &expectGiven, nullptr};
    }
};

/// Fails unless the class of `fresh`, a new object, has this name and just these members in this order.
void check(char const * name, Settings const & fresh, std::vector<Row> const & rows);

} // namespace SettingsClasses

/// One test for a class, from the list of its members.
#define SETTINGS_CLASS_TEST(Name, ...)                                                                                 \
    TEST(Name, IsWhatItsTableSays)                                                                                     \
    {                                                                                                                  \
        using Class [[maybe_unused]] = Name;                                                                           \
        SettingsClasses::check(#Name, Name(), {__VA_ARGS__});                                                          \
    }
#define SETTER(Name, ...)                                                                                              \
    SettingsClasses::Setter<Class, void(__VA_ARGS__), &Class::Set##Name, &Class::Get##Name>::row(#Name)
#define FIELD(name, ...) SettingsClasses::Field<Class, __VA_ARGS__, &Class::name>::row(#name)
