#include <effects/Schema.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <map>
#include <set>
#include <stdexcept>
#include <typeindex>
#include <unordered_map>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>

#include <QCoreApplication>

#include <nlohmann/json.hpp>

#include "ClassRow.h"

namespace Effect::Schema {

using nlohmann::json;
using Serialize::FieldLayout;
using Serialize::Form;
using Serialize::ISerializable;
using Serialize::Layout;

namespace {

constexpr char const * translationContext = "Effect::Schema";

QString translated(char const * text)
{
    return *text ? QCoreApplication::translate(translationContext, text) : QString();
}

// --- What the platform's classes mean --------------------------------------------------------------------------------

struct PlatformParameter : ParameterBuilder<PlatformParameter>
{};

/// The parameters of every effect, in the order of `Effect::Object`'s layout.
constexpr ParameterTraits objectTraits[] = {
    PlatformParameter()
        .label("Tag")
        .text("Name that distinguishes this preset from others of the effect")
        .ineffective(),
    PlatformParameter().label("Identifier").text("Which effect it is; decides what the render engine does"),
    PlatformParameter().label("Group").text("Under which group the effect is offered").ineffective(),
    PlatformParameter()
        .label("Intensity")
        .text("How strong the effect is; 0 is none, 1 is full strength")
        .suggest(0, 1),
    PlatformParameter().label("Resource").text("The file that the effect uses"),
    PlatformParameter().label("Resource path").text("Where that file is on disk"),
    PlatformParameter()
        .label("Range")
        .text("Part of the clip that the effect covers; the whole clip if not set")
        .ineffective(),
};

constexpr ParameterTraits rangeTraits[] = {
    PlatformParameter()
        .label("Start")
        .text("Where the effect begins in the clip")
        .unit(Unit::microseconds)
        .ineffective(),
    PlatformParameter().label("Length").text("How long the effect lasts").unit(Unit::microseconds).ineffective(),
};

constexpr Choice resourceTypeChoices[] = {
    {0, "None", "No file"},
    {1, "Video", "Video"},
    {2, "Audio", "Audio"},
    {3, "Image", "Image"},
    {4, "Blob", "Other file"},
};

constexpr ParameterTraits resourceTraits[] = {
    PlatformParameter().label("Name").text("Name under which the host registers the file"),
    PlatformParameter()
        .label("Type")
        .text("What the file contains; LUTs and shaders are other files")
        .choices(resourceTypeChoices),
};

constexpr ParameterTraits transformTraits[] = {
    PlatformParameter().label("Matrix").text("Nine numbers, row by row; the last row moves the picture"),
};

// --- Forms -----------------------------------------------------------------------------------------------------------

bool isRecord(FieldLayout const & field, char const * name)
{
    return field.form == Form::Record && std::strcmp(field.record->name, name) == 0;
}

Kind kindOf(FieldLayout const & field, ParameterTraits const & traits)
{
    switch (field.form) {
    case Form::Boolean:
        return Kind::Boolean;
    case Form::Int32:
        return traits.choiceCount ? Kind::Enumeration : Kind::Integer;
    case Form::UInt32:
        return traits.isColor ? Kind::Color : Kind::Integer;
    case Form::Int64:
        return traits.unit == Unit::microseconds ? Kind::Time : Kind::Integer;
    case Form::Double:
        return Kind::Real;
    case Form::Text:
    case Form::Bytes:
        return Kind::Text;
    case Form::Record:
        if (isRecord(field, "Types::Transform"))
            return Kind::Transform;
        return isRecord(field, "Resource::ID") ? Kind::Resource : Kind::Record;
    case Form::OptionalRecord:
        return Kind::Record;
    case Form::Doubles:
    case Form::Records:
    case Form::Objects:
        break;
    }
    return Kind::List;
}

std::string typeOf(FieldLayout const & field)
{
    switch (field.form) {
    case Form::Boolean:
        return "bool";
    case Form::Int32:
        return "int32";
    case Form::UInt32:
        return "uint32";
    case Form::Int64:
        return "int64";
    case Form::Double:
        return "double";
    case Form::Text:
        return "QString";
    case Form::Bytes:
        return "std::string";
    case Form::Doubles:
        return "std::array<double, " + std::to_string(field.count) + ">";
    case Form::Record:
        return field.record->name;
    case Form::OptionalRecord:
        return std::string("std::optional<") + field.record->name + ">";
    case Form::Records:
        return std::string("std::deque<") + field.record->name + ">";
    case Form::Objects:
        break;
    }
    return "std::deque<std::unique_ptr<Effect::Object const>>";
}

// --- The tables ------------------------------------------------------------------------------------------------------

class Tables
{
public:
    Tables()
    {
#define EXPORTED_FAMILY(name) addFamily(rowsOf##name(), #name, true);
#define HIDDEN_FAMILY(name) addFamily(rowsOf##name(), #name, false);
#include <effects/Families.def>
        addPlatformClass(*Serialize::Access::layout<Types::Range>());
        addPlatformClass(*Serialize::Access::layout<Types::Transform>());
        addPlatformClass(*Serialize::Access::layout<Resource::ID>());
        addPlatformClass(*Serialize::Access::layout<Object>());
        for (auto & [name, info] : m_classes)
            complete(*info);
    }

    std::vector<Class const *> const & classes() const
    {
        return m_listed;
    }

    Class const * find(std::string_view name) const
    {
        auto const found = m_classes.find(name);
        return found == m_classes.end() ? nullptr : found->second.get();
    }

    /// The class of that layout, be it one of the platform.
    Class const & record(Layout const & layout) const
    {
        auto const found = m_platform.find(layout.name);
        return found == m_platform.end() ? *find(layout.name) : *found->second;
    }

    /// Null for a class of the platform.
    ClassRow const * row(std::string const & name) const
    {
        auto const found = m_rows.find(name);
        return found == m_rows.end() ? nullptr : found->second;
    }

    Class const * of(std::type_info const & type) const
    {
        auto const found = m_byType.find(type);
        return found == m_byType.end() ? nullptr : found->second;
    }

private:
    void addFamily(ClassRows rows, char const * family, bool isExported)
    {
        for (ClassRow const * row : rows) {
            auto info = std::make_unique<Class>();
            info->name = row->layout->name;
            info->base = row->layout->base ? row->layout->base->name : "";
            info->family = family;
            info->isExported = isExported;
            info->text = row->text;
            m_rows[info->name] = row;
            m_byType[row->type()] = info.get();
            m_bases.insert(info->base);
            m_classes[info->name] = std::move(info);
        }
    }

    void complete(Class & info)
    {
        ClassRow const & row = *m_rows.at(info.name);
        auto const object = info.create();
        if (auto const * effect = dynamic_cast<Object const *>(object.get())) {
            info.isEffect = true;
            info.id = effect->id;
            info.groupId = effect->groupId;
            info.tag = effect->tag;
            info.defaultTag = effect->defaultTag();
            info.type = effect->type();
            info.impl = effect->impl();
            info.hasIntensity = effect->hasIntensity();
            info.isTwoInput = effect->isTwoInput();
            info.intensity = effect->intensity;
            info.processingSettingsId = effect->processingSettingsId();
        }
        bool const isBase = m_bases.count(info.name) != 0;
        info.isConverted = !isBase && (!info.isEffect || info.impl != Impl::Descriptor);
        addParameters(info, row, *row.layout, "/");
        m_listed.push_back(&info);
    }

    /// The parameters of the layout's base, then the layout's own. @param prefix  of their pointers
    void addParameters(Class & info, ClassRow const & row, Layout const & layout, std::string const & prefix)
    {
        if (layout.base)
            addParameters(info, row, *layout.base, prefix + layout.base->name + "/");
        ParameterTraits const * const traits = traitsOf(layout);
        for (std::size_t index = 0; index < layout.fieldCount; ++index) {
            FieldLayout const & field = layout.fields[index];
            ParameterTraits own = traits[index];
            if (std::string_view(layout.name) == Object::NameInArchive())
                adjust(own, row, field);
            info.parameters.push_back(makeParameter(field, own, layout, prefix));
            Parameter & parameter = info.parameters.back();
            parameter.classInfo = &info;
            if (info.isConverted)
                parameter.isEffective = own.isEffective;
        }
    }

    Parameter makeParameter(
        FieldLayout const & field, ParameterTraits const & traits, Layout const & layout, std::string const & prefix)
    {
        Parameter parameter;
        parameter.key = field.key;
        parameter.pointer = prefix + field.key;
        parameter.owner = layout.name;
        parameter.kind = kindOf(field, traits);
        parameter.type = typeOf(field);
        parameter.unit = traits.unit;
        auto const limit = [](Limit const & value) {
            return value.isSet ? std::optional<double>(value.value) : std::nullopt;
        };
        parameter.minimum = limit(traits.minimum);
        parameter.maximum = limit(traits.maximum);
        parameter.suggestedMinimum = limit(traits.suggestedMinimum);
        parameter.suggestedMaximum = limit(traits.suggestedMaximum);
        parameter.choices.assign(traits.choices, traits.choices + traits.choiceCount);
        if (parameter.minimum || parameter.maximum || !parameter.choices.empty())
            parameter.beyond = traits.beyond;
        parameter.fallback = limit(traits.fallback);
        parameter.layout = &field;
        parameter.traits = traits;
        if (field.form == Form::Objects)
            parameter.elements = &record(*Serialize::Access::layout<Object>());
        else if (field.record && parameter.kind != Kind::Transform && parameter.kind != Kind::Resource)
            parameter.elements = &record(*field.record);
        return parameter;
    }

    /// What the class knows better of a field of `Effect::Object`.
    static void adjust(ParameterTraits & traits, ClassRow const & row, FieldLayout const & field)
    {
        std::string_view const key = field.key;
        auto const end = row.adjusted + row.adjustedCount;
        auto const found = std::find_if(row.adjusted, end, [&](Inherited const & item) { return key == item.key; });
        if (found == end) {
            traits.isEffective = key == "id";
            return;
        }
        ParameterTraits const & known = *found;
        traits.isEffective = true;
        for (char const * ParameterTraits::*word :
            {&ParameterTraits::label, &ParameterTraits::text, &ParameterTraits::unit})
            if (*(known.*word))
                traits.*word = known.*word;
        for (Limit ParameterTraits::*limit : {&ParameterTraits::minimum, &ParameterTraits::maximum,
                 &ParameterTraits::suggestedMinimum, &ParameterTraits::suggestedMaximum})
            if ((known.*limit).isSet)
                traits.*limit = known.*limit;
        traits.beyond = known.beyond;
        traits.fallback = known.fallback;
    }

    ParameterTraits const * traitsOf(Layout const & layout) const
    {
        if (&layout == Serialize::Access::layout<Object>())
            return objectTraits;
        if (&layout == Serialize::Access::layout<Types::Range>())
            return rangeTraits;
        if (&layout == Serialize::Access::layout<Resource::ID>())
            return resourceTraits;
        if (&layout == Serialize::Access::layout<Types::Transform>())
            return transformTraits;
        return m_rows.at(layout.name)->traits;
    }

    /// A class of the platform, which is not listed.
    void addPlatformClass(Layout const & layout)
    {
        auto info = std::make_unique<Class>();
        info->name = layout.name;
        info->isExported = true;
        addParameters(*info, ClassRow{}, layout, "/");
        m_platform[layout.name] = std::move(info);
    }

    std::map<std::string, std::unique_ptr<Class>, std::less<>> m_classes;
    std::map<std::string, std::unique_ptr<Class>, std::less<>> m_platform;
    std::map<std::string, ClassRow const *, std::less<>> m_rows;
    std::set<std::string> m_bases;
    std::unordered_map<std::type_index, Class const *> m_byType;
    std::vector<Class const *> m_listed;
};

Tables const & tables()
{
    static Tables const instance;
    return instance;
}

// --- Reading values --------------------------------------------------------------------------------------------------

template <class T> T load(void const * address)
{
    T value;
    std::memcpy(&value, address, sizeof value);
    return value;
}

template <class T> void store(void * address, T value)
{
    std::memcpy(address, &value, sizeof value);
}

template <class T> json saved(T const & value)
{
    json result;
    Serialize::Json::Detail::save(result, value);
    return result;
}

json contentOf(Layout const & layout, ISerializable const & object);

json valueOf(FieldLayout const & field, ISerializable const & object)
{
    void const * const address = field.address(const_cast<ISerializable &>(object));
    switch (field.form) {
    case Form::Boolean:
        return *static_cast<bool const *>(address);
    case Form::Int32:
        return load<std::int32_t>(address);
    case Form::UInt32:
        return load<std::uint32_t>(address);
    case Form::Int64:
        return load<std::int64_t>(address);
    case Form::Double:
        return saved(load<double>(address));
    case Form::Text:
        return saved(*static_cast<QString const *>(address));
    case Form::Bytes:
        return saved(*static_cast<std::string const *>(address));
    case Form::Record:
        return contentOf(*field.record, *static_cast<ISerializable const *>(address));
    case Form::OptionalRecord:
        return field.container->size(address) ? contentOf(*field.record, *field.container->at(address, 0)) : json();
    case Form::Doubles:
    case Form::Records:
    case Form::Objects:
        break;
    }
    json result = json::array();
    if (field.form == Form::Doubles) {
        for (std::size_t index = 0; index < field.count; ++index)
            result.push_back(saved(static_cast<double const *>(address)[index]));
        return result;
    }
    for (std::size_t index = 0; index < field.container->size(address); ++index) {
        ISerializable const * const item = field.container->at(address, index);
        if (field.form == Form::Records) {
            result.push_back(contentOf(*field.record, *item));
        } else {
            json document;
            Serialize::Json::oarchive archive(document);
            archive << item;
            result.push_back(std::move(document));
        }
    }
    return result;
}

json contentOf(Layout const & layout, ISerializable const & object)
{
    json result = json::object();
    if (layout.hasClassInformation)
        result[Serialize::Json::MetaDetails::s_meta][Serialize::Json::MetaDetails::s_class_name] = layout.name;
    if (layout.base)
        result[layout.base->name] = contentOf(*layout.base, object);
    for (std::size_t index = 0; index < layout.fieldCount; ++index) {
        FieldLayout const & field = layout.fields[index];
        json value = valueOf(field, object);
        if (field.form != Form::OptionalRecord || !value.is_null())
            result[field.key] = std::move(value);
    }
    return result;
}

// --- Setting values --------------------------------------------------------------------------------------------------

/// A short form of a value, in ASCII, for an error message.
std::string shown(json const & value)
{
    if (value.is_number_float() && !std::isfinite(value.get<double>()))
        return saved(value.get<double>()).get<std::string>();
    constexpr std::size_t longest = 60;
    std::string text = value.dump(-1, ' ', true, json::error_handler_t::replace);
    if (text.size() > longest)
        text = text.substr(0, longest) + "...";
    return text;
}

std::string numberText(double number)
{
    return json(number == std::floor(number) && std::abs(number) < 1e15 ? json(static_cast<std::int64_t>(number))
                                                                        : json(number))
        .dump();
}

template <class Integer> std::string integersText()
{
    using Limits = std::numeric_limits<Integer>;
    return "an integer from " + std::to_string(Limits::min()) + " to " + std::to_string(Limits::max());
}

std::string choicesText(Parameter const & parameter)
{
    std::string text;
    for (Choice const & choice : parameter.choices)
        text += (text.empty() ? "" : ", ") + std::string(choice.name) + " (" + std::to_string(choice.value) + ")";
    return "one of " + text;
}

std::string allowedText(Parameter const & parameter)
{
    std::string text;
    switch (parameter.kind) {
    case Kind::Boolean:
        return "true or false";
    case Kind::Text:
        return "a text";
    case Kind::Color:
        return "\"#rrggbb\", \"#aarrggbb\" or " + integersText<std::uint32_t>();
    case Kind::Enumeration:
        return choicesText(parameter) +
               (parameter.beyond == Beyond::Refused ? "" : ", or " + integersText<std::int32_t>());
    case Kind::Transform:
        return "nine finite numbers, as in {\"m\": [1, 0, 0, 0, 1, 0, 0, 0, 1]}";
    case Kind::Resource:
        return "an object with \"name\" and \"type\"";
    case Kind::Record:
        return parameter.layout->form == Form::OptionalRecord ? "an object or null" : "an object";
    case Kind::List:
        return parameter.layout->form == Form::Doubles ? std::to_string(parameter.layout->count) + " finite numbers"
                                                       : "an array of objects";
    case Kind::Real:
        text = "a finite number";
        break;
    case Kind::Integer:
    case Kind::Time:
        text = parameter.layout->form == Form::Int32    ? integersText<std::int32_t>()
               : parameter.layout->form == Form::UInt32 ? integersText<std::uint32_t>()
                                                        : integersText<std::int64_t>();
        break;
    }
    if (parameter.beyond == Beyond::Refused) {
        if (parameter.minimum)
            text += ", at least " + numberText(*parameter.minimum);
        if (parameter.maximum)
            text += ", at most " + numberText(*parameter.maximum);
    }
    return text;
}

std::string nameOf(Parameter const & parameter)
{
    return "parameter \"" + parameter.key + "\" of " +
           (parameter.classInfo ? parameter.classInfo->name : parameter.owner);
}

[[noreturn]] void refuse(Parameter const & parameter, json const & given, std::string const & detail = {})
{
    std::string text = nameOf(parameter) + ": " + shown(given) + " is given, allowed is " + allowedText(parameter);
    if (!detail.empty())
        text += " (" + detail + ")";
    throw std::invalid_argument(text);
}

/// Runs `set`; what it refuses is refused with the place where it is.
template <class Set> void within(std::string const & place, Set const & set)
{
    try {
        set();
    } catch (std::invalid_argument const & error) {
        throw std::invalid_argument(place + ": " + error.what());
    }
}

/// @param holder  a list or an optional record
std::string elementOf(Parameter const & holder, std::size_t index)
{
    std::string const element = holder.kind == Kind::List ? "element " + std::to_string(index) + " of " : "";
    return element + nameOf(holder);
}

/// The integer that `value` is; nothing for another value or one that `Integer` cannot hold.
template <class Integer> std::optional<Integer> integerIn(json const & value)
{
    if (!value.is_number_integer())
        return std::nullopt;
    Integer number{};
    try {
        Serialize::Json::Detail::load(value, number);
    } catch (Serialize::ArchiveError const &) {
        return std::nullopt;
    }
    return number;
}

std::optional<std::uint32_t> colorIn(json const & value)
{
    if (!value.is_string())
        return integerIn<std::uint32_t>(value);
    std::string const & text = value.get_ref<std::string const &>();
    constexpr char const * digits = "0123456789abcdefABCDEF";
    if ((text.size() != 7 && text.size() != 9) || text[0] != '#' ||
        text.find_first_not_of(digits, 1) != std::string::npos)
        return std::nullopt;
    auto const number = static_cast<std::uint32_t>(std::stoul(text.substr(1), nullptr, 16));
    return text.size() == 7 ? number | 0xFF000000 : number;
}

std::optional<std::int32_t> choiceIn(json const & value, Parameter const & parameter)
{
    if (!value.is_string())
        return integerIn<std::int32_t>(value);
    for (Choice const & choice : parameter.choices)
        if (value.get_ref<std::string const &>() == choice.name)
            return choice.value;
    return std::nullopt;
}

bool isRow(json const & value)
{
    return value.is_array() && value.size() == 3;
}

/// Nine numbers in the form of the archive; `value` where it is no shorter form of them.
json transformIn(json const & value)
{
    if (!value.is_array())
        return value;
    json flat = json::array();
    if (isRow(value) && std::all_of(value.begin(), value.end(), isRow))
        for (json const & row : value)
            flat.insert(flat.end(), row.begin(), row.end());
    else
        flat = value;
    return {{"m", flat}};
}

/// Whether a number lies beyond the bounds, or is none of the choices, of a parameter that refuses such numbers.
bool isRefused(double number, Parameter const & parameter)
{
    if (parameter.beyond != Beyond::Refused)
        return false;
    auto const isIt = [&](Choice const & choice) { return choice.value == number; };
    return (parameter.minimum && number < *parameter.minimum) || (parameter.maximum && number > *parameter.maximum) ||
           (!parameter.choices.empty() && std::none_of(parameter.choices.begin(), parameter.choices.end(), isIt));
}

template <class T> void setInteger(void * address, json const & value, Parameter const & parameter)
{
    auto const number = integerIn<T>(value);
    if (!number || isRefused(static_cast<double>(*number), parameter))
        refuse(parameter, value);
    store(address, *number);
}

double finiteNumber(json const & value, Parameter const & parameter)
{
    if (!value.is_number() || !std::isfinite(value.get<double>()))
        refuse(parameter, value);
    return value.get<double>();
}

void setText(void * address, json const & value, Parameter const & parameter)
{
    if (!value.is_string() && !value.is_object() && !value.is_null())
        refuse(parameter, value);
    try {
        if (parameter.layout->form == Form::Text)
            Serialize::Json::Detail::load(value, *static_cast<QString *>(address));
        else
            Serialize::Json::Detail::load(value, *static_cast<std::string *>(address));
    } catch (Serialize::ArchiveError const & error) {
        refuse(parameter, value, error.what());
    }
}

void set(ISerializable & object, Parameter const & parameter, json const & value);

/// Whether `name` is that of a base of the class.
bool hasBase(Class const & info, std::string_view name)
{
    for (Class const * base = find(info.base); base; base = find(base->base))
        if (base->name == name)
            return true;
    return false;
}

/// Whether a meta object is absent, or is one of this class.
bool isMetaOf(Class const & info, json const & meta)
{
    if (!meta.is_object())
        return false;
    auto const name = meta.find(Serialize::Json::MetaDetails::s_class_name);
    return name == meta.end() || *name == info.name;
}

/// Sets the fields of a record from the keys that are there; others keep their values.
/// @param info  the class of the object or one of its bases
void setContent(ISerializable & object, Class const & info, json const & value, Parameter const & parameter)
{
    if (!value.is_object())
        refuse(parameter, value);
    for (auto const & [key, item] : value.items()) {
        if (key == Serialize::Json::MetaDetails::s_meta) {
            if (!isMetaOf(info, item))
                refuse(parameter, value, "the class is not " + info.name);
        } else if (hasBase(info, key)) {
            setContent(object, *find(key), item, parameter);
        } else if (auto const * const field = info.find(key)) {
            set(object, *field, item);
        } else {
            refuse(parameter, value, "there is no key \"" + key + '"');
        }
    }
}

/// Sets a record, or throws and leaves it as it is.
void setRecord(ISerializable & record, Parameter const & parameter, json const & value)
{
    Class const & info = tables().record(*parameter.layout->record);
    setContent(*info.create(), info, value, parameter);
    setContent(record, info, value, parameter);
}

/// Replaces the records in a list or in an optional by these, or throws and leaves them as they are.
void replaceRecords(void * container, Parameter const & parameter, json const & values)
{
    Class const & info = tables().record(*parameter.layout->record);
    for (std::size_t index = 0; index < values.size(); ++index)
        within(elementOf(parameter, index), [&] { setContent(*info.create(), info, values[index], parameter); });
    parameter.layout->container->clear(container);
    for (json const & value : values)
        setContent(*parameter.layout->container->append(container), info, value, parameter);
}

void setObjects(void * address, json const & value, Parameter const & parameter)
{
    if (!value.is_array())
        refuse(parameter, value);
    std::vector<std::unique_ptr<ISerializable>> objects;
    for (json const & item : value) {
        std::unique_ptr<Object> effect;
        try {
            Serialize::Json::iarchive archive(item);
            archive >> effect;
        } catch (std::exception const & error) {
            within(elementOf(parameter, objects.size()), [&] { refuse(parameter, item, error.what()); });
        }
        objects.push_back(std::move(effect));
    }
    parameter.layout->container->clear(address);
    for (auto & item : objects)
        parameter.layout->container->adopt(address, std::move(item));
}

/// Sets the value, or throws and leaves the object as it is.
void set(ISerializable & object, Parameter const & parameter, json const & value)
{
    FieldLayout const & field = *parameter.layout;
    void * const address = field.address(object);
    switch (field.form) {
    case Form::Boolean:
        if (!value.is_boolean())
            refuse(parameter, value);
        *static_cast<bool *>(address) = value.get<bool>();
        break;
    case Form::Int32:
        if (auto const number = choiceIn(value, parameter))
            return setInteger<std::int32_t>(address, *number, parameter);
        refuse(parameter, value);
    case Form::UInt32:
        if (parameter.kind != Kind::Color)
            return setInteger<std::uint32_t>(address, value, parameter);
        if (auto const number = colorIn(value))
            return store(address, *number);
        refuse(parameter, value);
    case Form::Int64:
        setInteger<std::int64_t>(address, value, parameter);
        break;
    case Form::Double: {
        double const number = finiteNumber(value, parameter);
        if (isRefused(number, parameter))
            refuse(parameter, value);
        store(address, number);
        break;
    }
    case Form::Text:
    case Form::Bytes:
        setText(address, value, parameter);
        break;
    case Form::Doubles: {
        if (!value.is_array() || value.size() != field.count)
            refuse(parameter, value);
        std::vector<double> numbers;
        for (json const & number : value)
            numbers.push_back(finiteNumber(number, parameter));
        std::copy(numbers.begin(), numbers.end(), static_cast<double *>(address));
        break;
    }
    case Form::Record:
        if (json const content = parameter.kind == Kind::Transform ? transformIn(value) : value; content.is_object())
            within(nameOf(parameter), [&] { setRecord(*static_cast<ISerializable *>(address), parameter, content); });
        else
            refuse(parameter, value);
        break;
    case Form::OptionalRecord:
        if (!value.is_null() && !value.is_object())
            refuse(parameter, value);
        replaceRecords(address, parameter, value.is_null() ? json::array() : json::array({value}));
        break;
    case Form::Records:
        if (!value.is_array())
            refuse(parameter, value);
        replaceRecords(address, parameter, value);
        break;
    case Form::Objects:
        setObjects(address, value, parameter);
        break;
    }
}

bool hasParameter(ISerializable const & object, Parameter const & parameter)
{
    if (Class const * const info = of(object))
        return std::any_of(info->parameters.begin(), info->parameters.end(),
            [&](Parameter const & own) { return own.layout == parameter.layout; });
    // A record of the platform, or a class of the host that may derive from the owner.
    if (parameter.owner == Object::NameInArchive())
        return dynamic_cast<Object const *>(&object) != nullptr;
    ClassRow const * const owner = tables().row(parameter.owner);
    return owner ? owner->isInstance(object) : object.GetNameInArchive() == parameter.owner;
}

/// Throws unless the object has the parameter.
void checkOwner(ISerializable const & object, Parameter const & parameter)
{
    if (!hasParameter(object, parameter))
        throw std::invalid_argument("an object of the class " + object.GetNameInArchive() + " has no parameter \"" +
                                    parameter.key + "\" of " + parameter.owner);
}

} // namespace

char const * toString(Kind kind)
{
    switch (kind) {
    case Kind::Boolean:
        return "boolean";
    case Kind::Integer:
        return "integer";
    case Kind::Real:
        return "real";
    case Kind::Text:
        return "text";
    case Kind::Color:
        return "colour";
    case Kind::Enumeration:
        return "enumeration";
    case Kind::Time:
        return "time";
    case Kind::Transform:
        return "transform";
    case Kind::Resource:
        return "resource";
    case Kind::Record:
        return "record";
    case Kind::List:
        break;
    }
    return "list";
}

char const * toString(Beyond beyond)
{
    switch (beyond) {
    case Beyond::Passed:
        return "passed";
    case Beyond::Clamped:
        return "clamped";
    case Beyond::Nearest:
        return "nearest";
    case Beyond::Fallback:
        return "fallback";
    case Beyond::Refused:
        break;
    }
    return "refused";
}

QString Parameter::label() const
{
    return translated(traits.label);
}

QString Parameter::description() const
{
    return translated(traits.text);
}

QString Parameter::label(Choice const & choice) const
{
    return translated(choice.label);
}

json Parameter::defaultValue() const
{
    auto const object = classInfo ? classInfo->create() : nullptr;
    return object ? valueOf(*layout, *object) : json();
}

QString Class::description() const
{
    return translated(text);
}

Parameter const * Class::find(std::string_view keyOrPointer) const
{
    // From the last: own parameters come before those of the bases.
    auto const found = std::find_if(parameters.rbegin(), parameters.rend(), [&](Parameter const & parameter) {
        return parameter.key == keyOrPointer || parameter.pointer == keyOrPointer;
    });
    return found == parameters.rend() ? nullptr : &*found;
}

std::unique_ptr<ISerializable> Class::create() const
{
    if (name == Types::Range::NameInArchive())
        return std::make_unique<Types::Range>();
    if (name == Resource::ID::NameInArchive())
        return std::make_unique<Resource::ID>();
    if (name == Types::Transform::NameInArchive())
        return std::make_unique<Types::Transform>();
    return Serialize::Registry::create(name);
}

std::vector<Class const *> const & classes()
{
    return tables().classes();
}

Class const * find(std::string_view archiveName)
{
    return tables().find(archiveName);
}

Class const * of(ISerializable const & object)
{
    return tables().of(typeid(object));
}

Class const * of(Object const & effect)
{
    return tables().of(typeid(effect));
}

json value(ISerializable const & object, Parameter const & parameter)
{
    checkOwner(object, parameter);
    return valueOf(*parameter.layout, object);
}

void setValue(ISerializable & object, Parameter const & parameter, json const & value)
{
    checkOwner(object, parameter);
    set(object, parameter, value);
}

std::size_t elementCount(ISerializable const & object, Parameter const & list)
{
    checkOwner(object, list);
    FieldLayout const & field = *list.layout;
    void const * const address = field.address(const_cast<ISerializable &>(object));
    return field.container ? field.container->size(address) : field.form == Form::Record ? 1 : 0;
}

ISerializable const * element(ISerializable const & object, Parameter const & list, std::size_t index)
{
    if (index >= elementCount(object, list))
        throw std::invalid_argument(
            "parameter \"" + list.key + "\" of " + list.owner + " has no element " + std::to_string(index));
    FieldLayout const & field = *list.layout;
    void const * const address = field.address(const_cast<ISerializable &>(object));
    return field.container ? field.container->at(address, index) : static_cast<ISerializable const *>(address);
}

ISerializable * element(ISerializable & object, Parameter const & list, std::size_t index)
{
    return const_cast<ISerializable *>(element(const_cast<ISerializable const &>(object), list, index));
}

} // namespace Effect::Schema
