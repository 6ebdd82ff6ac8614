#include <inspect/JsonSchema.h>

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include <EditorModel/Resource.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Layout.h>
#include <inspect/ClassDescription.h>
#include <inspect/Text.h>

namespace Effect::Inspect {

using Effect::Schema::Class;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;
using Serialize::Form;
using namespace Serialize::Json::MetaDetails;

namespace {

constexpr char const * definitionsKey = "definitions";

// Definitions that are not of a class. Archive names of classes contain "::".
constexpr char const * anyEffect = "anyEffect";
constexpr char const * isReference = "isReference";
constexpr char const * reference = "reference";
constexpr char const * textName = "text";
constexpr char const * bytesName = "bytes";
constexpr char const * objectNumber = "objectNumber";

constexpr char const * schemaKey = "$schema";

constexpr Effect::Choice resourceTypes[] = {
    {static_cast<int>(Resource::Type::None), "None", "No file"},
    {static_cast<int>(Resource::Type::Video), "Video", "Video"},
    {static_cast<int>(Resource::Type::Audio), "Audio", "Audio"},
    {static_cast<int>(Resource::Type::Image), "Image", "Picture"},
    {static_cast<int>(Resource::Type::Blob), "Blob", "Other file, such as a table or a shader"},
};

/// A document may name its schema; the reader ignores the key.
json schemaProperty()
{
    return {{"type", "string"}, {"title", "Schema"}, {"description", "Where the schema of the document is"}};
}

json refTo(std::string const & definition)
{
    return {{"$ref", "#/definitions/" + definition}};
}

/// The same with room for annotations: validators ignore keywords beside a "$ref".
json allOf(std::string const & definition)
{
    return {{"allOf", json::array({refTo(definition)})}};
}

template <class Integer> json integer()
{
    using Limits = std::numeric_limits<Integer>;
    return {{"type", "integer"}, {"minimum", Limits::min()}, {"maximum", Limits::max()}};
}

json real()
{
    return {{"type", {"number", "string"}}, {"pattern", "^(-?Infinity|NaN)$"}};
}

json reals(std::size_t count)
{
    return {{"type", "array"}, {"items", real()}, {"minItems", count}, {"maxItems", count}};
}

/// A text with an unpaired surrogate is an object with its units.
json text()
{
    json units{{"type", "array"}, {"items", {{"type", "integer"}, {"minimum", 0}, {"maximum", 0xFFFF}}}};
    return {{"type", {"string", "null", "object"}}, {"properties", {{"$utf16", std::move(units)}}},
        {"required", {"$utf16"}}, {"additionalProperties", false}};
}

/// Bytes that are no UTF-8 are an object with their base64.
json bytes()
{
    char const * const base64 = "^([A-Za-z0-9+/]*|([A-Za-z0-9+/]{4})*([A-Za-z0-9+/]{2}==|[A-Za-z0-9+/]{3}=))$";
    return {{"type", {"string", "object"}}, {"properties", {{"$bytes", {{"type", "string"}, {"pattern", base64}}}}},
        {"required", {"$bytes"}}, {"additionalProperties", false}};
}

/// An integer for which editors offer the choices.
/// @param areAll  whether no other number is valid
template <class Choices> json enumeration(Choices const & choices, bool areAll)
{
    json known = json::array();
    for (auto const & [value, name, label] : choices)
        known.push_back({{"const", value}, {"title", name}, {"description", label}});
    if (!areAll)
        known.push_back(integer<std::int32_t>());
    return {{"type", "integer"}, {"anyOf", std::move(known)}};
}

/// What a hover shows: the sentence, then unit, bounds and slider.
std::string descriptionOf(Parameter const & parameter)
{
    std::vector<std::string> notes;
    if (!parameter.unit.empty())
        notes.push_back("Unit: " + (parameter.unit == Effect::Unit::engine ? "the render engine's" : parameter.unit));
    if (std::string const bounds = boundsText(parameter); !bounds.empty())
        notes.push_back("Range: " + bounds);
    if (std::string const suggestion = suggestionText(parameter); !suggestion.empty())
        notes.push_back("Suggested: " + suggestion);
    if (parameter.kind == Kind::Color)
        notes.push_back("The colour is 0xAARRGGBB as a decimal number");
    if (!parameter.choices.empty()) {
        std::vector<std::string> names;
        for (Effect::Choice const & choice : parameter.choices)
            names.push_back(std::to_string(choice.value) + ' ' + parameter.label(choice).toStdString());
        notes.push_back("Choices: " + joined(names, ", "));
    }
    if (parameter.isEffective == false)
        notes.push_back("No settings depend on it");
    std::string text = parameter.description().toStdString();
    for (std::string const & note : notes)
        text += (text.empty() || text.back() == '.' ? " " : ". ") + note;
    return text;
}

class Generator
{
public:
    explicit Generator(SchemaOptions const & options)
        : m_options(options)
    {}

    json make()
    {
        m_definitions[textName] = text();
        m_definitions[bytesName] = bytes();
        m_definitions[objectNumber] = integer<std::int64_t>();
        json schema = m_options.isOfItems ? item() : document();
        schema[schemaKey] = "http://json-schema.org/draft-07/schema#";
        schema["title"] = m_options.isOfItems ? "Item of the effects catalogue" : "Archive document of an effect";
        schema[definitionsKey] = std::move(m_definitions);
        return schema;
    }

private:
    /// An object whose keys are those of `properties`, or others too unless the schema is closed.
    json object(json properties) const
    {
        json schema{{"type", "object"}, {"properties", std::move(properties)}};
        if (m_options.isClosed)
            schema["additionalProperties"] = false;
        return schema;
    }

    /// Of an archive document. Null is none: it holds no effect.
    json document()
    {
        json schema = m_options.classes.empty() ? effectOrReference() : referenceOr(oneOf(m_options.classes));
        schema["type"] = "object";
        return schema;
    }

    /// A meta object where the class does not matter.
    static json anyMeta() { return {{"type", "object"}}; }

    /// The meta object. @param className  the schema of the class name
    json meta(json className) const
    {
        json schema = object({{s_class_name, std::move(className)}, {s_id, refTo(objectNumber)}});
        schema["title"] = "Class and number of the object";
        return schema;
    }

    /// A reference, or else what `schema` accepts. The object that a reference leads to is not validated.
    json referenceOr(json schema)
    {
        m_definitions[isReference] = {{"type", "object"}, {"required", {s_meta}},
            {"properties", {{s_meta, {{"type", "object"}, {"required", {s_reference}}}}}}};
        m_definitions[reference] = {{"properties", {{s_meta, {{"properties", {{s_reference, refTo(objectNumber)}}}}}}}};
        return {{"if", refTo(isReference)}, {"then", refTo(reference)}, {"else", std::move(schema)}};
    }

    /// An object of one of the classes, which its meta object names. Values that are not objects are valid as well.
    json oneOf(std::vector<Class const *> const & classes)
    {
        json names = json::array();
        json cases = json::array();
        for (Class const * const info : classes) {
            names.push_back(info->name);
            json isOfClass{{"required", {s_class_name}}, {"properties", {{s_class_name, {{"const", info->name}}}}}};
            cases.push_back(
                {{"if", {{"type", "object"}, {"required", {s_meta}}, {"properties", {{s_meta, std::move(isOfClass)}}}}},
                    {"then", refTo(define(*info))}});
        }
        json named = meta({{"enum", std::move(names)}});
        named["required"] = {s_class_name};
        return {{"required", {s_meta}}, {"properties", {{s_meta, std::move(named)}}}, {"allOf", std::move(cases)}};
    }

    json effectOrReference()
    {
        if (!m_definitions.contains(anyEffect)) {
            m_definitions[anyEffect] = nullptr; // effects hold effects
            std::vector<Class const *> effects;
            for (Class const * const info : Effect::Schema::classes())
                if (info->isEffect)
                    effects.push_back(info);
            m_definitions[anyEffect] = oneOf(effects);
        }
        return referenceOr(refTo(anyEffect));
    }

    /// The name of the definition of a class.
    std::string const & define(Class const & info)
    {
        if (!m_definitions.contains(info.name)) {
            m_definitions[info.name] = nullptr;
            json schema = content(info, meta({{"const", info.name}}));
            schema["title"] = info.name;
            schema["description"] = info.description().toStdString();
            schema["properties"][schemaKey] = schemaProperty();
            m_definitions[info.name] = std::move(schema);
        }
        return info.name;
    }

    /// The object of a class with that of its base in it, as each parameter's pointer leads through them.
    /// @param metaObject  the schema of the meta object
    json content(Class const & info, json metaObject)
    {
        json schema = object({{s_meta, std::move(metaObject)}});
        for (Parameter const & parameter : info.parameters) {
            json * level = &schema;
            std::string const & path = parameter.pointer;
            for (std::size_t start = 1; path.find('/', start) != path.npos;) {
                std::size_t const end = path.find('/', start);
                std::string const base = path.substr(start, end - start);
                json & inner = (*level)["properties"][base];
                if (inner.is_null())
                    inner = referenceOr(object({{s_meta, meta({{"const", base}})}}));
                level = &inner["else"];
                start = end + 1;
            }
            (*level)["properties"][parameter.key] =
                parameter.owner == info.name ? property(parameter) : inherited(parameter);
        }
        return schema;
    }

    /// A parameter of a base. Most classes describe it alike, so that one definition serves them all.
    json inherited(Parameter const & parameter)
    {
        std::string const name = parameter.owner + '.' + parameter.key;
        json schema = property(parameter);
        if (!m_definitions.contains(name))
            m_definitions[name] = schema;
        return m_definitions[name] == schema ? refTo(name) : schema;
    }

    json property(Parameter const & parameter)
    {
        json schema = value(*parameter.layout, &parameter);
        schema["title"] = parameter.label().toStdString();
        schema["description"] = descriptionOf(parameter);
        schema["default"] = parameter.defaultValue();
        if (parameter.beyond == Effect::Beyond::Refused) {
            if (parameter.minimum)
                schema["minimum"] = *parameter.minimum;
            if (parameter.maximum)
                schema["maximum"] = *parameter.maximum;
        }
        return schema;
    }

    /// What the reader accepts as the value of a field.
    /// @param parameter  that the field is; null for one of a record that has no parameters of its own
    json value(Serialize::FieldLayout const & field, Parameter const * parameter)
    {
        switch (field.form) {
        case Form::Boolean:
            return {{"type", "boolean"}};
        case Form::Int32:
            if (!parameter || parameter->choices.empty())
                return integer<std::int32_t>();
            return enumeration(parameter->choices, parameter->beyond == Effect::Beyond::Refused);
        case Form::UInt32:
            return integer<std::uint32_t>();
        case Form::Int64:
            return integer<std::int64_t>();
        case Form::Double:
            return real();
        case Form::Text:
            return allOf(textName);
        case Form::Bytes:
            return allOf(bytesName);
        case Form::Doubles:
            return reals(field.count);
        case Form::Record:
            return referenceOr(parameter && parameter->elements ? record(*parameter) : record(*field.record));
        case Form::OptionalRecord: {
            json schema = record(*parameter);
            schema["type"] = {"object", "null"};
            return referenceOr(std::move(schema));
        }
        case Form::Records:
            return {{"type", "array"}, {"items", referenceOr(refTo(define(*parameter->elements)))}};
        case Form::Objects:
            break;
        }
        json element = effectOrReference();
        element["type"] = {"object", "null"};
        return {{"type", "array"}, {"items", std::move(element)}};
    }

    /// A record with parameters of its own. The reader looks at the class of one that has class information.
    json record(Parameter const & parameter)
    {
        Class const & info = *parameter.elements;
        return content(info, parameter.layout->record->hasClassInformation ? meta({{"const", info.name}}) : anyMeta());
    }

    /// A transform or a resource.
    json record(Serialize::Layout const & layout)
    {
        json properties{{s_meta, anyMeta()}};
        for (std::size_t index = 0; index < layout.fieldCount; ++index)
            properties[layout.fields[index].key] = value(layout.fields[index], nullptr);
        if (std::string_view(layout.name) == Resource::ID::NameInArchive())
            properties["type"] = enumeration(resourceTypes, false);
        return object(std::move(properties));
    }

    json item()
    {
        json category{{"type", "string"}, {"description", "Such as \"category_blur\""}};
        json categories{{"type", "array"}, {"items", std::move(category)}, {"title", "Categories"},
            {"description", "Under which the item is offered"}};
        json effect = document();
        effect["title"] = "Effect";
        effect["description"] = "The archive document of the effect; what is left out is as in a new effect";
        json schema = object(
            {{"categories", std::move(categories)}, {"effect", std::move(effect)}, {schemaKey, schemaProperty()}});
        schema["required"] = {"effect"};
        return schema;
    }

    SchemaOptions const & m_options;
    json m_definitions = json::object();
};

} // namespace

json jsonSchema(SchemaOptions const & options)
{
    return Generator(options).make();
}

} // namespace Effect::Inspect
