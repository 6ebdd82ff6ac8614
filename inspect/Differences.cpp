#include <inspect/Differences.h>

#include <algorithm>
#include <map>
#include <set>

#include <EditorModel/Fuzzy.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <effects/Schema.h>
#include <inspect/ClassDescription.h>
#include <inspect/Text.h>
#include <inspect/Walk.h>

namespace Effect::Inspect {

using nlohmann::json;
using Schema::Parameter;
using Serialize::Json::pointerStep;
using Serialize::Json::MetaDetails::s_meta;

namespace {

json metaOf(json const & value)
{
    return value.value(s_meta, json());
}

json operation(char const * name, std::string const & pointer)
{
    return {{"op", name}, {"path", pointer}};
}

json operation(char const * name, std::string const & pointer, json const & value)
{
    return {{"op", name}, {"path", pointer}, {"value", value}};
}

void add(json const & from, json const & to, std::string const & pointer, json & patch);

void addOfObjects(json const & from, json const & to, std::string const & pointer, json & patch)
{
    for (auto const & [key, value] : from.items()) {
        std::string const place = pointer + pointerStep(key);
        if (auto const other = to.find(key); other != to.end())
            add(value, *other, place, patch);
        else
            patch.push_back(operation("remove", place));
    }
    for (auto const & [key, value] : to.items())
        if (!from.contains(key))
            patch.push_back(operation("add", pointer + pointerStep(key), value));
}

void addOfLists(json const & from, json const & to, std::string const & pointer, json & patch)
{
    std::size_t const shorter = std::min(from.size(), to.size());
    std::size_t head = 0;
    while (head < shorter && isSame(from[head], to[head]))
        ++head;
    std::size_t tail = 0;
    while (tail < shorter - head && isSame(from[from.size() - 1 - tail], to[to.size() - 1 - tail]))
        ++tail;
    std::size_t const both = shorter - tail;
    for (std::size_t index = head; index < both; ++index)
        add(from[index], to[index], pointer + pointerStep(index), patch);
    // Backwards, so that the indices of what is still to go stay.
    for (std::size_t index = from.size() - tail; index-- > both;)
        patch.push_back(operation("remove", pointer + pointerStep(index)));
    for (std::size_t index = both; index + tail < to.size(); ++index)
        patch.push_back(operation("add", pointer + pointerStep(index), to[index]));
}

void add(json const & from, json const & to, std::string const & pointer, json & patch)
{
    if (isSame(from, to))
        return;
    if (from.is_object() && to.is_object() && metaOf(from) == metaOf(to))
        addOfObjects(from, to, pointer, patch);
    else if (from.is_array() && to.is_array())
        addOfLists(from, to, pointer, patch);
    else
        patch.push_back(operation("replace", pointer, to));
}

/// The parameters of a file by their JSON pointers.
using Parameters = std::map<std::string, Parameter const *>;

Parameters parametersOf(EffectFile const & file)
{
    Parameters parameters;
    if (Object const * const effect = file.effect())
        walk(*effect, file.effectPointer(),
            [&](Serialize::ISerializable const &, Parameter const & parameter, std::string const & pointer) {
                parameters[pointer] = &parameter;
            });
    return parameters;
}

/// A parameter that holds a place, and its own place.
struct Holder
{
    std::string pointer;
    Parameter const * parameter = nullptr;
};

/// The innermost parameter that a pointer leads to or into; none for what is no parameter's.
Holder holderOf(std::string pointer, Parameters const & parameters)
{
    for (; !pointer.empty(); pointer.erase(pointer.rfind('/')))
        if (auto const found = parameters.find(pointer); found != parameters.end())
            return {pointer, found->second};
    return {};
}

/// The value at a place as a person reads it; empty where there is none.
std::string textAt(json const & document, std::string const & pointer, Parameter const * parameter)
{
    json::json_pointer const place(pointer);
    if (!document.contains(place))
        return {};
    json const & value = document[place];
    if (parameter)
        return valueText(*parameter, value);
    // An effect, which is long.
    if (value.is_object() && metaOf(value).is_object())
        return metaOf(value).value(Serialize::Json::MetaDetails::s_class_name, toText(value));
    return toText(value);
}

/// Whether the operations are about the effects alone, since one of the files is an item and the other is not.
bool isMixed(EffectFile const & left, EffectFile const & right)
{
    return left.isItem() != right.isItem();
}

json effectDocument(EffectFile const & file)
{
    return file.document()[json::json_pointer(file.effectPointer())];
}

} // namespace

bool isSame(json const & left, json const & right)
{
    if (left.is_number_float() && right.is_number()) {
        auto const number = left.get<double>();
        return number == right.get<double>() || fuzzyEqual(number, right.get<double>());
    }
    if (left.is_number() && right.is_number_float())
        return isSame(right, left);
    if (left.type() != right.type() || !left.is_structured() || left.size() != right.size())
        return left == right;
    if (left.is_array())
        return std::equal(left.begin(), left.end(), right.begin(), isSame);
    for (auto const & [key, value] : left.items())
        if (auto const other = right.find(key); other == right.end() || !isSame(value, *other))
            return false;
    return true;
}

json patchFrom(json const & from, json const & to, std::string const & pointer)
{
    json patch = json::array();
    add(from, to, pointer, patch);
    return patch;
}

json patchFrom(EffectFile const & from, EffectFile const & to)
{
    if (isMixed(from, to))
        return patchFrom(effectDocument(from), effectDocument(to), from.effectPointer());
    return patchFrom(from.document(), to.document());
}

std::vector<Difference> differencesOf(EffectFile const & left, EffectFile const & right)
{
    Parameters const leftParameters = parametersOf(left);
    Parameters const rightParameters = parametersOf(right);
    json const leftDocument = left.document();
    json const rightDocument = right.document();
    std::size_t const prefix = left.effectPointer().size();
    std::vector<Difference> differences;
    std::set<std::string> seen;
    for (json const & change : patchFrom(left, right)) {
        std::string place = change["path"];
        auto const inRight = [&](std::string const & pointer) {
            return isMixed(left, right) ? right.effectPointer() + pointer.substr(prefix) : pointer;
        };
        Holder holder = holderOf(place, leftParameters);
        if (!holder.parameter) {
            holder = holderOf(inRight(place), rightParameters);
            if (holder.parameter && isMixed(left, right))
                holder.pointer = left.effectPointer() + holder.pointer.substr(right.effectPointer().size());
        }
        Parameter const * parameter = holder.parameter;
        // An element as a whole, or what is unknown in one, is no parameter's value.
        bool const isInside = parameter && parameter->elements && holder.pointer != place;
        if (parameter && !isInside)
            place = holder.pointer;
        if (!seen.insert(place).second)
            continue;
        bool const isOwn = parameter && !isInside && parameter->pointer == place.substr(std::min(prefix, place.size()));
        std::string const inEffect = place.rfind(left.effectPointer(), 0) == 0 ? place.substr(prefix) : place;
        Parameter const * const shown = isInside ? nullptr : parameter;
        differences.push_back({isOwn              ? parameter->key
                               : inEffect.empty() ? "class"
                                                  : inEffect,
            shown ? shown->label().toStdString() : std::string(), textAt(leftDocument, place, shown),
            textAt(rightDocument, inRight(place), shown)});
    }
    return differences;
}

} // namespace Effect::Inspect
