#include "Documents.h"

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Registry.h>

#include "Command.h"

namespace Host {

using nlohmann::json;
using Serialize::Json::MetaDetails::s_class_name;
using Serialize::Json::MetaDetails::s_meta;

namespace {

constexpr char const * objectName = "Effect::Object";
constexpr char const * classPrefix = "Effect::";
// Absent from a document when there is none.
constexpr char const * optionalObjectKey = "range";

std::string classOf(json const & document)
{
    return document.at(s_meta).at(s_class_name).get<std::string>();
}

} // namespace

std::unique_ptr<Serialize::ISerializable> create(std::string const & className)
{
    auto object = Serialize::Registry::create(className);
    if (!object)
        throw Failure("there is no class \"" + className + "\"");
    return object;
}

std::unique_ptr<Effect::Object> createEffect(std::string const & className)
{
    auto object = create(className);
    auto * const effect = dynamic_cast<Effect::Object *>(object.get());
    if (!effect)
        throw Failure("the class \"" + className + "\" is no effect's");
    object.release();
    return std::unique_ptr<Effect::Object>(effect);
}

json document(Serialize::ISerializable const & object)
{
    json document;
    Serialize::Json::oarchive archive(document);
    Serialize::ISerializable const * const pointer = &object;
    archive << pointer;
    return document;
}

std::unique_ptr<Effect::Object> effectOf(json const & document)
{
    Serialize::Json::iarchive archive(document);
    std::unique_ptr<Effect::Object> effect;
    archive >> effect;
    return effect;
}

std::string baseOf(json const & document)
{
    // No field's key begins as the archive names do.
    auto const key = document.get_ref<json::object_t const &>().lower_bound(classPrefix);
    bool const isBase =
        key != document.get_ref<json::object_t const &>().end() && key->first.rfind(classPrefix, 0) == 0;
    return isBase ? key->first : std::string();
}

json ownFields(json const & document)
{
    json fields = document;
    fields.erase(s_meta);
    fields.erase(baseOf(document));
    return fields;
}

void setField(json & document, std::string const & key, json value)
{
    std::string const className = classOf(document);
    for (json * level = &document; classOf(*level) != objectName;) {
        if (key != s_meta && key.rfind(classPrefix, 0) != 0 && level->contains(key)) {
            (*level)[key] = std::move(value);
            return;
        }
        std::string const base = baseOf(*level);
        if (base.empty())
            break;
        level = &(*level)[base];
    }
    throw Failure(className + " has no field \"" + key + "\"");
}

void setObjectField(json & document, std::string const & key, json value)
{
    json * level = &document;
    while (classOf(*level) != objectName) {
        std::string const base = baseOf(*level);
        if (base.empty())
            throw Failure(classOf(document) + " is no effect");
        level = &(*level)[base];
    }
    if (key == s_meta || (!level->contains(key) && key != optionalObjectKey))
        throw Failure(std::string(objectName) + " has no field \"" + key + "\"");
    (*level)[key] = std::move(value);
}

} // namespace Host
