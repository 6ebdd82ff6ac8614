/// @file
/// What the conversions of all families share. A conversion is a row of the factory's tables, which the family's source
/// adds itself:
///
/// ```cpp
/// table.add<Blur, Proc::SettingsEffectBlurGaussian>(
///     Id::Blur, [](auto & settings, Blur const & effect) { settings.SetScale(effect.intensity / 20.0); });
/// ```
///
/// Numbers are passed as they are unless the engine wants them narrower.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>

#include <collection/Effects/FactoryCaches.h>
#include <collection/Effects/Stages.h>
#include <ConfInt/ImplNames.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Base.h>

#include <QMap>
#include <QString>

namespace Effect::Factory {

namespace Proc = Quoril::Proc;

/// A record of one settings object.
EffectSettings makeEffectSettings(
    std::unique_ptr<Proc::Settings> settings, std::uint8_t stageCode, std::string implementation);

/// Throws a `std::bad_cast` that names the effect's identifier, the class that it belongs to, and the effect's class.
[[noreturn]] void throwWrongClass(Object const & effect, std::type_info const & expected);

/// The effect as an object of the class that its identifier belongs to; throws as `throwWrongClass` for another class.
template <class Effect> Effect const & castTo(Object const & object)
{
    // A fast path for an exact match.
    if (typeid(object) == typeid(Effect))
        return static_cast<Effect const &>(object);
    if (auto const * const cast = dynamic_cast<Effect const *>(&object))
        return *cast;
    throwWrongClass(object, typeid(Effect));
}

/// The intensity, as most settings classes take it.
inline float floatIntensity(Object const & effect)
{
    return static_cast<float>(effect.intensity);
}

/// A packed colour's channels, 0 to 255.
struct Channels
{
    std::uint8_t red, green, blue;
};

/// Splits `0xAARRGGBB`; the alpha is dropped.
constexpr Channels channels(std::uint32_t color)
{
    return {static_cast<std::uint8_t>(color >> 16), static_cast<std::uint8_t>(color >> 8),
        static_cast<std::uint8_t>(color)};
}

/// Whether an enumeration is one of the first `count`.
template <class Enum> constexpr bool isKnown(Enum value, int count)
{
    int const number = static_cast<int>(value);
    return number >= 0 && number < count;
}

/// Copies an enumeration to the engine's of the same numbers, if it is one of the first `count`; else that one stays.
template <class Enum, class EngineEnum> constexpr void copyKnown(Enum value, int count, EngineEnum & target)
{
    if (isKnown(value, count))
        target = static_cast<EngineEnum>(value);
}

/// An enumeration's number when it is one of the first `count`, else `fallback`.
template <class Enum> constexpr int knownValue(Enum value, int count, int fallback = 0)
{
    return isKnown(value, count) ? static_cast<int>(value) : fallback;
}

/// A number truncated to an integer, or the nearest integer that there is. What is no number counts as the lowest.
constexpr int saturatedInt(double number)
{
    using Limits = std::numeric_limits<int>;
    if (number >= Limits::max())
        return Limits::max();
    return number > Limits::min() ? static_cast<int>(number) : Limits::min();
}

/// A preset's row in a table of presets; null when the table has none.
template <class Row, std::size_t size, class Enum> constexpr Row const * knownRow(Row const (&table)[size], Enum preset)
{
    int const index = knownValue(preset, static_cast<int>(size), -1);
    return index < 0 ? nullptr : table + index;
}

/// A preset's row in a table of presets; the first or the last for a preset before or beyond them.
template <class Row, std::size_t size, class Enum>
constexpr Row const & nearestRow(Row const (&table)[size], Enum preset)
{
    return table[std::clamp(static_cast<int>(preset), 0, static_cast<int>(size) - 1)];
}

/// How the effects of one identifier are converted.
template <class Params> struct Conversion
{
    std::function<EffectSettings(Object const &, Params const &)> convert;
    std::type_info const * effectClass = nullptr;
};

/// Conversions by identifier.
template <class Params> using ConversionTable = QMap<QString, Conversion<Params>>;

/// The factory's tables. Whether a row is a video or an audio one follows from the effect's class.
class Conversions
{
public:
    /// Effects of that identifier and class become one settings object, made with its default constructor and filled
    /// by `fill(settings, effect)` or `fill(settings, effect, params)`: a `VideoContext` or an `AudioParams`.
    /// @param implementation  lasts as long as the program
    template <class Effect, class Settings, class Fill>
    void add(QString const & id, Fill fill, std::uint8_t stage = stageOf<Effect>,
        std::string const & implementation = Proc::ImplNames::DEFAULT)
    {
        addRecord<Effect>(id, [fill, stage, &implementation](Effect const & effect, ParamsOf<Effect> const & params) {
            auto settings = std::make_unique<Settings>();
            if constexpr (std::is_invocable_v<Fill, Settings &, Effect const &, ParamsOf<Effect> const &>)
                fill(*settings, effect, params);
            else
                fill(*settings, effect);
            return makeEffectSettings(std::move(settings), stage, implementation);
        });
    }

    /// The same for a settings object that stays as it was made.
    template <class Effect, class Settings>
    void addBare(QString const & id, std::uint8_t stage = stageOf<Effect>,
        std::string const & implementation = Proc::ImplNames::DEFAULT)
    {
        add<Effect, Settings>(
            id, [](Settings &, Effect const &) {}, stage, implementation);
    }

    /// Effects of that identifier and class become the record that `convert(effect, params)` returns.
    template <class Effect, class Convert> void addRecord(QString const & id, Convert convert)
    {
        tableOf<Effect>().insert(id, {[convert](Object const & object, ParamsOf<Effect> const & params) {
                                          return convert(castTo<Effect>(object), params);
                                      },
                                         &typeid(Effect)});
    }

    ConversionTable<VideoContext> video;
    ConversionTable<AudioParams> audio;

private:
    template <class Effect> static constexpr bool isVideo = std::is_base_of_v<VideoEffect, Effect>;
    template <class Effect> static constexpr std::uint8_t stageOf = isVideo<Effect> ? Stage::video : Stage::audio;
    template <class Effect> using ParamsOf = std::conditional_t<isVideo<Effect>, VideoContext, AudioParams>;

    template <class Effect> auto & tableOf()
    {
        if constexpr (isVideo<Effect>)
            return video;
        else
            return audio;
    }
};

/// @{
/// Each family with conversions has a function `addBlur(table)`, which its source in conversions/ defines.
#define CONVERTED_FAMILY(family) void add##family(Conversions & table);
#include <effects/Families.def>
/// @}

} // namespace Effect::Factory
