#include <inspect/Report.h>

#include <cmath>
#include <functional>

#include <effects/Holder.h>
#include <effects/Schema.h>
#include <inspect/Bounds.h>
#include <inspect/Documents.h>
#include <inspect/Resources.h>
#include <inspect/Walk.h>

namespace Effect::Inspect {

using nlohmann::json;
using Schema::Parameter;

namespace {

/// The value with each number in it replaced.
template <class Change> json withNumbers(json value, Change const & change)
{
    if (value.is_number())
        return change(value);
    for (json & inner : value)
        if (inner.is_structured() || inner.is_number())
            inner = withNumbers(std::move(inner), change);
    return value;
}

/// The integer by one more or less; beyond the last one come those of the other sign.
json nextInteger(json const & number, int by)
{
    return static_cast<std::int64_t>(number.get<std::uint64_t>() + static_cast<std::uint64_t>(by));
}

/// A number so close to another one that single precision has one value for both: the next integer, or a number that
/// differs in the last bits.
json neighbour(json const & number, int direction)
{
    if (number.is_number_integer())
        return nextInteger(number, direction);
    constexpr double bits = 0x1p-50;
    return number.get<double>() * (1 + direction * bits);
}

json inSinglePrecision(json const & number)
{
    double const narrow = static_cast<double>(static_cast<float>(number.get<double>()));
    bool const isInteger = number.is_number_integer() && std::abs(narrow) < 0x1p63;
    return isInteger ? json(static_cast<std::int64_t>(narrow)) : json(narrow);
}

class Reporter
{
public:
    Reporter(RenderHost & host, Object const & effect, RenderParams const & params)
        : m_host(host)
        , m_params(params)
        , m_document(document(effect))
        , m_settings(settingsOf(m_document))
    {}

    json parametersOf(Object const & effect)
    {
        json parameters = json::array();
        std::string ignored; // pointer of a list or a record on which nothing depends
        walk(effect, {},
            [&](Serialize::ISerializable const & object, Parameter const & parameter, std::string const & pointer) {
                bool const isInside = !ignored.empty() && pointer.rfind(ignored + '/', 0) == 0;
                if (parameter.elements) {
                    if (!isInside && parameter.isEffective != true)
                        ignored = pointer;
                    return;
                }
                // What is held is reported on its own.
                if (dynamic_cast<EffectsHolder const *>(&effect) && &object != &effect)
                    return;
                json const given = Schema::value(object, parameter);
                json report{{"pointer", pointer}, {"given", given}, {"outcome", "ignored"}, {"used", nullptr}};
                if (!isInside && parameter.isEffective == true)
                    std::tie(report["outcome"], report["used"]) = used(parameter, pointer, given);
                parameters.push_back(std::move(report));
            });
        return parameters;
    }

private:
    json settingsOf(json const & archived) { return m_host.convert(*effectOf(archived), m_params)["settings"]; }

    /// Whether the settings are the same with another value.
    bool isSame(std::string const & pointer, json const & value)
    {
        json changed = m_document;
        changed[json::json_pointer(pointer)] = value;
        try {
            return settingsOf(changed) == m_settings;
        } catch (std::exception const &) {
            return false; // no such value
        }
    }

    std::pair<json, json> used(Parameter const & parameter, std::string const & pointer, json const & given)
    {
        auto const number = numberIn(given);
        if (number && parameter.beyond && isBeyond(*number, parameter)) {
            switch (*parameter.beyond) {
            case Beyond::Passed:
            case Beyond::Refused:
                break;
            case Beyond::Clamped:
                return {"clamped", like(given, *boundBefore(*number, parameter))};
            case Beyond::Nearest:
                return {"nearest", like(given, parameter.choices.empty() ? *boundBefore(*number, parameter)
                                                                         : nearestChoice(*number, parameter))};
            case Beyond::Fallback:
                return {"fallback", parameter.fallback ? like(given, *parameter.fallback) : parameter.defaultValue()};
            }
        }
        bool const isPlain = parameter.kind == Schema::Kind::Integer || parameter.kind == Schema::Kind::Real ||
                             parameter.kind == Schema::Kind::Time || parameter.kind == Schema::Kind::Transform ||
                             parameter.kind == Schema::Kind::List;
        if (!isPlain)
            return {"exact", given};
        if (json const narrow = narrowed(pointer, given); narrow != given)
            return {"narrowed", narrow};
        if (given.is_number() && isSame(pointer, shifted(given, 1)) && isSame(pointer, shifted(given, -1)))
            return cut(pointer, given);
        return {"exact", given};
    }

    static json shifted(json const & number, int by)
    {
        return number.is_number_integer() ? nextInteger(number, by) : json(number.get<double>() + by);
    }

    /// A number on which the settings do not depend where it is. Either they do not anywhere, as long as the other
    /// parameters and the files are what they are, or it is beyond a limit that follows from those.
    std::pair<json, json> cut(std::string const & pointer, json const & given)
    {
        auto const value = given.get<double>();
        if (!std::isfinite(value) || value == 0)
            return {"exact", given};
        if (isSame(pointer, like(given, 0)))
            return {"ignored", nullptr};
        constexpr int steps = 60;
        double different = 0;
        double same = value;
        for (int step = 0; step < steps; ++step) {
            double middle = different + (same - different) / 2;
            if (given.is_number_integer())
                middle = std::trunc(middle);
            if (middle == different || middle == same)
                break;
            (isSame(pointer, like(given, middle)) ? same : different) = middle;
        }
        // Close by, it is but the engine's precision.
        constexpr double precision = 0x1p-20;
        bool const isLimit = std::abs(value - same) > std::abs(value) * precision;
        return isLimit ? std::pair<json, json>{"clamped", like(given, same)} : std::pair<json, json>{"exact", given};
    }

    /// A number in the form of another one.
    static json like(json const & form, double number)
    {
        return form.is_number_integer() ? json(static_cast<std::int64_t>(number)) : json(number);
    }

    /// The value as far as the settings tell it from others.
    json narrowed(std::string const & pointer, json const & given)
    {
        auto const moved = [&given](int direction) {
            return withNumbers(given, [direction](json const & number) { return neighbour(number, direction); });
        };
        // Whole numbers alone, which half of the conversions to integers round and the others cut off.
        if (given.is_number_float() && given != std::trunc(given.get<double>())) {
            auto const value = given.get<double>();
            bool const isUsed = !isSame(pointer, value + 1) && !isSame(pointer, value - 1);
            for (double const whole : {std::trunc(value), std::round(value)})
                if (isUsed && isSame(pointer, whole))
                    return whole;
        }
        json const single = withNumbers(given, inSinglePrecision);
        bool const isLost = single != given && isSame(pointer, moved(1)) && isSame(pointer, moved(-1));
        return isLost ? single : given;
    }

    RenderHost & m_host;
    RenderParams const m_params;
    json const m_document;
    json const m_settings;
};

json resourceReport(Object const & effect)
{
    json resources = json::array();
    for (ResourceUse const & use : resourcesOf(effect))
        resources.push_back({{"name", use.name}, {"file", use.file.empty() ? json() : json(use.file)},
            {"outcome", toText(use.outcome)}, {"message", use.message.empty() ? json() : json(use.message)}});
    return resources;
}

} // namespace

json reportOf(RenderHost & host, Object const & effect, RenderParams const & params)
{
    bool const isHolder = dynamic_cast<EffectsHolder const *>(&effect) != nullptr;
    return {{"parameters", Reporter(host, effect, params).parametersOf(effect)},
        {"resources", isHolder ? json::array() : resourceReport(effect)}};
}

} // namespace Effect::Inspect
