/// @file
/// Declarations common to all archived classes, in three kinds of macro:
///
/// - `EFFECT_CLASS` and `EFFECT_FILTER_CLASS`, first in a class, declare its archive hooks.
/// - The rows of a family's `.def` file give each class its identity, see <effects/Rows.h>.
/// - `EFFECT_SETTER` defines a setter.
#pragma once

#include <string>

#include <boost/serialization/access.hpp>

#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Registry.h>
#include <effects/Export.h>
#include <effects/Parameter.h>

namespace Serialize {
class ISerializer;
class IDeserializer;
} // namespace Serialize

/// Comes first in a class that has an archive name, "Effect::" and the class's. The class describes its fields in
/// `static constexpr auto describe()`; `serialization/` defines what is declared here from that and from the class's
/// row in the family's `.def` file.
#define EFFECT_CLASS(Class)                                                                                            \
public:                                                                                                                \
    static char const * NameInArchive();                                                                               \
    std::string GetNameInArchive() const override;                                                                     \
    void Serialize(Serialize::ISerializer & serializer) const override;                                                \
    void Deserialize(Serialize::IDeserializer & deserializer) override;                                                \
    Serialize::Layout const * GetLayout() const override;                                                              \
                                                                                                                       \
private:                                                                                                               \
    friend Serialize::Access;                                                                                          \
    friend boost::serialization::access;                                                                               \
    struct EFFECTS_HIDDEN Creator;                                                                                     \
    EFFECTS_HIDDEN static Serialize::Registrator const s_registrator;                                                  \
    static Serialize::Layout const s_layout;                                                                           \
    template <class Archive> void serialize(Archive & archive);                                                        \
                                                                                                                       \
public:

/// The same for an effect of the filter collections: it has an intensity, and its default tag is its own. Its row is a
/// `FILTER`.
#define EFFECT_FILTER_CLASS(Class)                                                                                     \
    EFFECT_CLASS(Class)                                                                                                \
    Class();                                                                                                           \
    bool hasIntensity() const override;                                                                                \
    QString defaultTag() const override;

/// Defines a setter that stores its argument and returns the object.
#define EFFECT_SETTER(Class, setter, Argument, field)                                                                  \
    Class * Class::setter(Argument value)                                                                              \
    {                                                                                                                  \
        field = value;                                                                                                 \
        return this;                                                                                                   \
    }
