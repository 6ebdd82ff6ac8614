#include "Variations.h"

#include <map>
#include <stdexcept>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Registry.h>

namespace Testing {

using nlohmann::json;

namespace {

constexpr char const * metaKey = "$meta";

/// What the lists of the library hold, by key.
std::map<std::string, std::string> const elementClasses{
    {"multiband", "Effect::AudioEqualizer::BandEq"},
    {"echos", "Effect::AudioEcho::Echo"},
    {"highlightFrames", "Effect::FrameHighlight"},
    {"concealFrames", "Effect::FrameConceal"},
    {"effects", "Effect::VideoEffect"},
};

json variedElement(std::string const & className)
{
    return varied(documentOf(*created(className)));
}

json variedValue(std::string const & key, json value)
{
    if (value.is_boolean())
        return !value.get<bool>();
    // Two kinds of integers in a document, one of which is unsigned; both stay within 32 bits.
    if (value.is_number_unsigned())
        return value.get<std::uint64_t>() + 1;
    if (value.is_number_integer())
        return value.get<std::int64_t>() + 1;
    if (value.is_number_float())
        return value.get<double>() * 1.5 + 0.1875;
    if (value.is_string())
        return value.get<std::string>() + u8" é\U0001D11E";
    if (value.is_array() && value.empty()) {
        json const element = variedElement(elementClasses.at(key));
        return json::array({element, varied(element)});
    }
    if (value.is_array()) {
        for (json & element : value)
            element = variedValue(key, element);
        return value;
    }
    if (value.is_object())
        return varied(value);
    throw std::logic_error("no way to vary \"" + key + "\"");
}

} // namespace

json documentOf(Serialize::ISerializable const & object)
{
    json document;
    Serialize::Json::oarchive archive(document);
    Serialize::ISerializable const * const pointer = &object;
    archive << pointer;
    return document;
}

std::unique_ptr<Serialize::ISerializable> objectOf(json const & document)
{
    Serialize::Json::iarchive archive(document);
    std::unique_ptr<Serialize::ISerializable> object;
    archive >> object;
    return object;
}

json varied(json document)
{
    for (auto & [key, value] : document.items())
        if (key != metaKey)
            value = variedValue(key, value);
    if (document.contains(metaKey) && document[metaKey]["class"] == "Effect::Object" && !document.contains("range"))
        document["range"] = {{"start", 5}, {"length", 7}};
    return document;
}

std::unique_ptr<Serialize::ISerializable> created(std::string const & className)
{
    auto object = Serialize::Registry::create(className);
    if (!object)
        throw std::logic_error(className + " is not registered");
    return object;
}

} // namespace Testing
