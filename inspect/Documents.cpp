#include <inspect/Documents.h>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Nearest.h>
#include <inspect/Failure.h>

namespace Effect::Inspect {

using Effect::Schema::Class;
using Effect::Schema::Parameter;
using nlohmann::json;
using Serialize::Json::MetaDetails::s_class_name;
using Serialize::Json::MetaDetails::s_meta;

Class const & classNamed(std::string const & name)
{
    if (Class const * const info = Effect::Schema::find(name))
        return *info;
    std::vector<std::string> names;
    for (Class const * const info : Effect::Schema::classes())
        names.push_back(info->name);
    bool const hasNamespace = name.find("::") != std::string::npos;
    throw Failure(
        "there is no class \"" + name + "\"" + Serialize::didYouMean((hasNamespace ? "" : "Effect::") + name, names));
}

std::vector<Class const *> classesNamed(std::vector<std::string> const & names)
{
    if (names.empty())
        return Effect::Schema::classes();
    std::vector<Class const *> classes;
    for (std::string const & name : names)
        classes.push_back(&classNamed(name));
    return classes;
}

std::unique_ptr<Serialize::ISerializable> create(std::string const & className)
{
    return classNamed(className).create();
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

void setField(json & document, FieldsOf part, std::string const & key, json value)
{
    Class const & info = classNamed(document.at(s_meta).at(s_class_name));
    Parameter const * found = nullptr;
    std::vector<std::string> known;
    for (Parameter const & parameter : info.parameters) {
        if ((parameter.owner == Effect::Object::NameInArchive()) != (part == FieldsOf::Object))
            continue;
        known.push_back(parameter.key);
        if (parameter.key == key)
            found = &parameter; // own ones come last
    }
    if (!found)
        throw Failure((part == FieldsOf::Object ? Effect::Object::NameInArchive() : info.name) + " has no field \"" +
                      key + '"' + Serialize::didYouMean(key, known));
    document[json::json_pointer(found->pointer)] = std::move(value);
}

} // namespace Effect::Inspect
