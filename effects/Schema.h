/// @file
/// What the effects mean: every archived class with its parameters, their units, bounds and choices, and access to any
/// parameter of any object, also of classes that the library keeps to itself.
///
/// ```cpp
/// Effect::Schema::Class const & blur = *Effect::Schema::find("Effect::TiltShift");
/// Effect::Schema::Parameter const & softness = *blur.find("smns");
/// Effect::Schema::setValue(*effect, softness, 0.4);
/// ```
///
/// Include <nlohmann/json.hpp> where values are used. The tables are made at the first call and last until the library
/// is unloaded. All functions may be called from any thread; an object must not be changed while it is read.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json_fwd.hpp>

#include <EditorModel/EffectObject.h>
#include <effects/Export.h>
#include <effects/Parameter.h>

#include <QString>

namespace Serialize {
struct FieldLayout;
} // namespace Serialize

namespace Effect::Schema {

class Class;

/// What a parameter is, seen from a panel.
enum class Kind
{
    Boolean,
    Integer,
    Real,
    Text,
    Color,       ///< a packed `0xAARRGGBB`
    Enumeration, ///< an integer that stands for something; see `choices`
    Time,        ///< `MTime` units, microseconds
    Transform,   ///< `{"m": [nine numbers, row by row]}`
    Resource,    ///< `{"name": text, "type": integer}`
    Record,      ///< an object with parameters of its own; see `elements`
    List,        ///< an array of such
};

/// The word for it in documents: "boolean", "integer", "real", "text", "colour", "enumeration", "time", "transform",
/// "resource", "record", "list".
EFFECTS_API char const * toString(Kind kind);

/// The word for it in documents: "passed", "clamped", "nearest", "fallback", "refused".
EFFECTS_API char const * toString(Beyond beyond);

/// One parameter of a class, its own or inherited.
struct EFFECTS_API Parameter
{
    std::string key;     ///< in the archives
    std::string pointer; ///< JSON pointer into the class's archive document: "/Effect::VideoEffect/Effect::Object/id"
    std::string owner;   ///< archive name of the class that declares it
    Kind kind = Kind::Boolean; ///< what a panel shows it as
    std::string type;          ///< C++ type, such as "int32" or "Types::Transform"
    std::string unit; ///< as it is shown, "engine" where only the render engine knows it; empty where there is none
    /// @{
    /// Bounds of the conversion or of a format. Numbers beyond are valid; `beyond` says what they do.
    std::optional<double> minimum;
    std::optional<double> maximum;
    /// @}
    /// @{
    /// Ends for a slider.
    std::optional<double> suggestedMinimum;
    std::optional<double> suggestedMaximum;
    /// @}
    std::vector<Choice> choices;    ///< of an enumeration; names and labels last as long as the library, in English
    std::optional<Beyond> beyond;   ///< nothing where nothing lies beyond
    std::optional<double> fallback; ///< the value that counts instead, for `Beyond::Fallback`
    /// Whether the settings record depends on the parameter; nothing in a class that is never converted.
    std::optional<bool> isEffective;
    /// The class of the elements of a list or a record; null for other kinds. Lists of effects hold any class; this is
    /// then the base that they have in common.
    Class const * elements = nullptr;

    /// @{
    /// In the language of the translator that the host has installed, else in English.
    QString label() const;
    QString description() const;
    QString label(Choice const & choice) const;
    /// @}

    /// The value in a new object, as in its archive document; null where the document has no such key.
    nlohmann::json defaultValue() const;

    /// @cond
    Serialize::FieldLayout const * layout = nullptr;
    ParameterTraits traits;
    Class const * classInfo = nullptr;
    /// @endcond
};

/// One archived class.
class EFFECTS_API Class
{
public:
    std::string name;        ///< archive name, such as "Effect::Blur"
    std::string base;        ///< archive name of its base in the archives; empty where it has none
    std::string family;      ///< "Blur": its header is <effects/Blur.h>
    bool isExported = false; ///< whether the C++ class is in an installed header
    bool isEffect = false;   ///< whether it derives from `Effect::Object`; what follows is empty for other classes
    /// @{
    /// Of a new effect of the class.
    QString id;
    QString groupId;
    QString tag;
    QString defaultTag;
    Type type = Type::Video;
    Impl impl = Impl::Descriptor;
    bool hasIntensity = false;
    bool isTwoInput = false;
    /// @}
    double intensity = 0;         ///< of a new effect
    QString processingSettingsId; ///< of a new effect
    bool isConverted = false;     ///< whether the factory makes settings of it

    /// What the class does, in the language of the translator that the host has installed, else in English.
    QString description() const;

    /// Those of `Effect::Object` first, then each base's, then its own, in the order of the binary archive.
    std::vector<Parameter> parameters;

    /// The parameter with that archive key, own ones before the base's, or with that JSON pointer; null when there is
    /// none.
    Parameter const * find(std::string_view keyOrPointer) const;

    /// A new object with its defaults.
    std::unique_ptr<Serialize::ISerializable> create() const;

    /// @cond
    char const * text = "";
    /// @endcond
};

/// Every archived class, sorted by archive name.
EFFECTS_API std::vector<Class const *> const & classes();

/// The class with that archive name; null for an unknown name.
EFFECTS_API Class const * find(std::string_view archiveName);

/// @{
/// The class of an effect, or of a record in a list; null for a class of the host.
EFFECTS_API Class const * of(Object const & effect);
EFFECTS_API Class const * of(Serialize::ISerializable const & object);
/// @}

/// The value of a parameter, as it is in the archive document. An optional record that is absent is null.
/// @param object  of the class that has the parameter or of one that derives from it; throws `std::invalid_argument`
///                for another
EFFECTS_API nlohmann::json value(Serialize::ISerializable const & object, Parameter const & parameter);

/// Sets a parameter. Besides the form of the archive document, an enumeration takes the name of a choice, a colour
/// "#rrggbb" or "#aarrggbb", and a transform its nine numbers, flat or in three rows. Fields that the value of a record
/// does not mention are kept; an optional record and the elements of a list are made anew, with defaults for those.
///
/// Throws `std::invalid_argument`, which names the parameter, what was given and what is allowed, for a value of
/// another type, for a number that is out of the type's range, not finite, or refused, and for an object of another
/// class; the object is unchanged then.
EFFECTS_API void setValue(Serialize::ISerializable & object, Parameter const & parameter, nlohmann::json const & value);

/// @{
/// The elements of a list, or the record that a parameter holds (an optional one has none or one). The element of a
/// list of effects is null for an empty slot.
EFFECTS_API std::size_t elementCount(Serialize::ISerializable const & object, Parameter const & list);
EFFECTS_API Serialize::ISerializable const * element(
    Serialize::ISerializable const & object, Parameter const & list, std::size_t index);
EFFECTS_API Serialize::ISerializable * element(
    Serialize::ISerializable & object, Parameter const & list, std::size_t index);
/// @}

} // namespace Effect::Schema
