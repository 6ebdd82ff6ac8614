#include <inspect/Changes.h>

#include <stdexcept>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Nearest.h>
#include <effects/Schema.h>
#include <inspect/Failure.h>
#include <inspect/Text.h>

#include <QString>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;
using Serialize::ISerializable;

namespace {

/// What is changed, for messages: a class, or an element in one of its lists.
struct Place
{
    std::string name;
    Class const & info;
};

/// A JSON value; what is no JSON is a text.
json valueOf(std::string const & text)
{
    try {
        return Serialize::Json::parse(text);
    } catch (std::exception const &) {
        return text;
    }
}

bool isSame(QString const & left, QString const & right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/// The number of the choice with that name or label.
json choiceNamed(std::string const & text, Parameter const & parameter)
{
    QString const word = QString::fromStdString(text);
    std::vector<std::string> names;
    std::vector<std::string> choices;
    for (Effect::Choice const & choice : parameter.choices) {
        if (isSame(word, QString::fromUtf8(choice.name)) || isSame(word, parameter.label(choice)))
            return choice.value;
        names.emplace_back(choice.name);
        choices.push_back(std::string(choice.name) + " (" + std::to_string(choice.value) + ')');
    }
    std::string const suggestion = Serialize::didYouMean(text, names);
    throw Failure("\"" + parameter.key + "\" has no choice \"" + text + '"' +
                  (suggestion.empty() ? "; allowed" : suggestion + " Allowed") + " is one of " + joined(choices, ", ") +
                  (parameter.beyond == Effect::Beyond::Refused ? "" : ", or an integer"));
}

void assign(ISerializable & object, Parameter const & parameter, json const & value)
{
    try {
        Effect::Schema::setValue(object, parameter, value);
    } catch (std::invalid_argument const & error) {
        throw Failure(error.what());
    }
}

void setText(ISerializable & object, Parameter const & parameter, std::string const & text)
{
    json value = valueOf(text);
    if (parameter.kind == Kind::Enumeration && value.is_string())
        value = choiceNamed(value, parameter);
    assign(object, parameter, value);
}

[[noreturn]] void failUnknown(Place const & place, std::string const & key)
{
    bool const isPointer = key.front() == '/';
    std::vector<std::string> known;
    for (Parameter const & parameter : place.info.parameters)
        known.push_back(isPointer ? parameter.pointer : parameter.key);
    std::string const suggestion = Serialize::didYouMean(key, known);
    throw Failure(place.name + " has no field \"" + key + '"' +
                  (suggestion.empty() ? ", only " + joined(known, ", ") : suggestion));
}

/// The parameter that the pointer leads to or through; null when there is none.
Parameter const * parameterAlong(std::string const & pointer, Class const & info)
{
    for (Parameter const & parameter : info.parameters) {
        std::string const & start = parameter.pointer;
        if (pointer.compare(0, start.size(), start) == 0 &&
            (pointer.size() == start.size() || pointer[start.size()] == '/'))
            return &parameter;
    }
    return nullptr;
}

/// The first step of a pointer that is not empty, without its slash.
std::string firstStep(std::string const & pointer)
{
    return pointer.substr(1, pointer.find('/', 1) - 1);
}

/// Sets a number in a transform or an array, a part of a resource, or an element of a list as a whole.
void setPart(ISerializable & object, Parameter const & parameter, std::string const & rest, std::string const & text)
{
    json value = Effect::Schema::value(object, parameter);
    try {
        value.at(json::json_pointer(rest)) = valueOf(text);
    } catch (json::exception const &) {
        throw Failure("\"" + parameter.key + "\" has no \"" + rest + "\", it is " + toText(value));
    }
    assign(object, parameter, value);
}

void setAt(ISerializable & object, Place const & place, std::string const & pointer, std::string const & text);

void setInElement(ISerializable & object, Parameter const & list, std::string const & rest, std::string const & text)
{
    std::string const step = firstStep(rest);
    std::size_t const count = elementCount(object, list);
    bool const isNumber = !step.empty() && step.size() < 10 && step.find_first_not_of("0123456789") == step.npos;
    if (!isNumber || std::stoul(step) >= count)
        throw Failure("\"" + list.key + "\" has no element \"" + step + "\", it has " + std::to_string(count));
    std::string const inside = rest.substr(1 + step.size());
    if (inside.empty())
        return setPart(object, list, rest, text);
    std::string const name = "element " + step + " of \"" + list.key + '"';
    ISerializable * const item = element(object, list, std::stoul(step));
    if (!item)
        throw Failure(name + " is empty");
    Class const * const info = Effect::Schema::of(*item);
    setAt(*item, {name, info ? *info : *list.elements}, inside, text);
}

/// Sets a part of a record, which is there from then on.
void setInRecord(ISerializable & object, Parameter const & record, std::string const & rest, std::string const & text)
{
    bool const isAbsent = elementCount(object, record) == 0;
    if (isAbsent)
        assign(object, record, json::object());
    try {
        setAt(*element(object, record, 0), {'"' + record.key + '"', *record.elements}, rest, text);
    } catch (...) {
        if (isAbsent)
            assign(object, record, nullptr);
        throw;
    }
}

void setAt(ISerializable & object, Place const & place, std::string const & pointer, std::string const & text)
{
    Parameter const * const parameter = parameterAlong(pointer, place.info);
    if (!parameter)
        failUnknown(place, pointer);
    std::string const rest = pointer.substr(parameter->pointer.size());
    if (rest.empty())
        setText(object, *parameter, text);
    else if (!parameter->elements)
        setPart(object, *parameter, rest, text);
    else if (parameter->kind == Kind::List)
        setInElement(object, *parameter, rest, text);
    else
        setInRecord(object, *parameter, rest, text);
}

} // namespace

void setParameter(ISerializable & object, std::string const & key, std::string const & value)
{
    Class const * const info = Effect::Schema::of(object);
    if (!info)
        throw Failure("the class \"" + object.GetNameInArchive() + "\" is not of this library");
    Place const place{info->name, *info};
    if (!key.empty() && key.front() == '/')
        return setAt(object, place, key, value);
    Parameter const * const parameter = info->find(key);
    if (!parameter)
        failUnknown(place, key);
    setText(object, *parameter, value);
}

} // namespace Effect::Inspect
