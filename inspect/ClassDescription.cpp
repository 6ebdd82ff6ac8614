#include <inspect/ClassDescription.h>

#include <cmath>
#include <cstdint>
#include <cstdio>

#include <inspect/Text.h>

namespace Effect::Inspect {

using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;

namespace {

constexpr std::uint32_t opaque = 0xFF000000;

json orNull(std::string const & text)
{
    return text.empty() ? json() : json(text);
}

json orNull(std::optional<double> const & number)
{
    return number ? json(*number) : json();
}

json choicesOf(Parameter const & parameter)
{
    if (parameter.kind != Kind::Enumeration)
        return nullptr;
    json choices = json::array();
    for (Effect::Choice const & choice : parameter.choices)
        choices.push_back(
            {{"value", choice.value}, {"name", choice.name}, {"label", parameter.label(choice).toStdString()}});
    return choices;
}

json describeAll(std::vector<Parameter> const & parameters)
{
    json described = json::array();
    for (Parameter const & parameter : parameters)
        described.push_back(describe(parameter));
    return described;
}

std::string limitsText(std::optional<double> const & least, std::optional<double> const & most)
{
    if (least && most)
        return numberText(*least) + " to " + numberText(*most);
    if (least)
        return "at least " + numberText(*least);
    return most ? "at most " + numberText(*most) : std::string();
}

std::string colorText(std::uint32_t color)
{
    char text[sizeof "#aarrggbb"];
    bool const isOpaque = (color & opaque) == opaque;
    std::snprintf(text, sizeof text, isOpaque ? "#%06x" : "#%08x", isOpaque ? color & ~opaque : color);
    return text;
}

std::string transformText(json const & numbers)
{
    std::vector<std::string> texts;
    for (json const & number : numbers)
        texts.push_back(number.is_number() ? numberText(number.get<double>()) : number.get<std::string>());
    return joined(texts, " ");
}

} // namespace

json factsOf(Class const & info)
{
    json facts{{"class", info.name}, {"base", orNull(info.base)}};
    if (info.isEffect) {
        facts["id"] = info.id.toStdString();
        facts["groupId"] = info.groupId.toStdString();
        facts["tag"] = info.tag.toStdString();
        facts["defaultTag"] = info.defaultTag.toStdString();
        facts["type"] = static_cast<int>(info.type);
        facts["impl"] = static_cast<int>(info.impl);
        facts["hasIntensity"] = info.hasIntensity;
        facts["isTwoInput"] = info.isTwoInput;
    } else {
        for (char const * const key :
            {"id", "groupId", "tag", "defaultTag", "type", "impl", "hasIntensity", "isTwoInput"})
            facts[key] = nullptr;
    }
    return facts;
}

json describe(Parameter const & parameter)
{
    return {{"key", parameter.key}, {"pointer", parameter.pointer}, {"class", parameter.owner},
        {"kind", toString(parameter.kind)}, {"type", parameter.type}, {"label", parameter.label().toStdString()},
        {"description", parameter.description().toStdString()}, {"unit", parameter.unit},
        {"default", parameter.defaultValue()}, {"minimum", orNull(parameter.minimum)},
        {"maximum", orNull(parameter.maximum)}, {"suggestedMinimum", orNull(parameter.suggestedMinimum)},
        {"suggestedMaximum", orNull(parameter.suggestedMaximum)}, {"choices", choicesOf(parameter)},
        {"beyond", parameter.beyond ? json(Effect::Schema::toString(*parameter.beyond)) : json()},
        {"fallback", orNull(parameter.fallback)},
        {"effective", parameter.isEffective ? json(*parameter.isEffective) : json()},
        {"elements", parameter.elements ? describeAll(parameter.elements->parameters) : json()}};
}

json describe(Class const & info)
{
    json described = factsOf(info);
    described["family"] = info.family;
    described["description"] = info.description().toStdString();
    described["exported"] = info.isExported;
    described["parameters"] = describeAll(info.parameters);
    return described;
}

std::string valueText(Parameter const & parameter, json const & value)
{
    switch (parameter.kind) {
    case Kind::Enumeration:
        for (Effect::Choice const & choice : parameter.choices)
            if (value == choice.value)
                return std::string(choice.name) + " (" + value.dump() + ')';
        break;
    case Kind::Color:
        if (value.is_number_integer())
            return colorText(value.get<std::uint32_t>());
        break;
    case Kind::Transform:
        if (value.is_object())
            return transformText(value.value("m", json::array()));
        break;
    case Kind::List:
        if (parameter.elements)
            return std::to_string(value.size()) + (value.size() == 1 ? " item" : " items");
        break;
    case Kind::Integer:
    case Kind::Real:
    case Kind::Time:
        if (value.is_number() && !parameter.unit.empty() && parameter.unit != Effect::Unit::engine)
            return toText(value) + ' ' + parameter.unit;
        break;
    default:
        break;
    }
    return toText(value);
}

std::string numberText(double number)
{
    constexpr double largestExact = 1e15;
    bool const isInteger = number == std::floor(number) && std::abs(number) < largestExact;
    return toText(isInteger ? json(static_cast<std::int64_t>(number)) : json(number));
}

std::string boundsText(Parameter const & parameter)
{
    std::string text = limitsText(parameter.minimum, parameter.maximum);
    if (!parameter.beyond)
        return text;
    std::string const subject = parameter.choices.empty() ? "beyond: " : "other numbers: ";
    text += (text.empty() ? "" : "; ") + subject;
    switch (*parameter.beyond) {
    case Effect::Beyond::Passed:
        return text + "passed on as they are";
    case Effect::Beyond::Clamped:
        return text + "clamped";
    case Effect::Beyond::Nearest:
        return text + "the nearest choice counts";
    case Effect::Beyond::Fallback:
        break;
    case Effect::Beyond::Refused:
        return text + "refused";
    }
    return text + (parameter.fallback ? numberText(*parameter.fallback) : "the default") + " counts instead";
}

std::string suggestionText(Parameter const & parameter)
{
    return limitsText(parameter.suggestedMinimum, parameter.suggestedMaximum);
}

} // namespace Effect::Inspect
