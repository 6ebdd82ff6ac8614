/// @file
/// What every class of the library has, whatever it is.
#pragma once

#include <string>

#include <boost/serialization/access.hpp>

#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Registry.h>
#include <effects/Export.h>

namespace Serialize {
class ISerializer;
class IDeserializer;
} // namespace Serialize

/// Stands first in a class that has an archive name, "Effect::" and the class's. `serialization/` defines what it
/// declares, with the class's `serialize` from `effects/archive/`.
#define EFFECT_CLASS(Class)                                                                                            \
public:                                                                                                                \
    static char const * NameInArchive()                                                                                \
    {                                                                                                                  \
        return "Effect::" #Class;                                                                                      \
    }                                                                                                                  \
    std::string GetNameInArchive() const override;                                                                     \
    void Serialize(Serialize::ISerializer & serializer) const override;                                                \
    void Deserialize(Serialize::IDeserializer & deserializer) override;                                                \
                                                                                                                       \
private:                                                                                                               \
    friend Serialize::Access;                                                                                          \
    friend boost::serialization::access;                                                                               \
    struct EFFECTS_HIDDEN Creator;                                                                                     \
    EFFECTS_HIDDEN static Serialize::Registrator const s_registrator;                                                  \
    template <class Archive> void serialize(Archive & archive);                                                        \
                                                                                                                       \
public:

/// The same for an effect of the filter collections: it has an intensity, and its default tag is its own.
#define EFFECT_FILTER_CLASS(Class)                                                                                     \
    EFFECT_CLASS(Class)                                                                                                \
    Class();                                                                                                           \
    bool hasIntensity() const override;                                                                                \
    QString defaultTag() const override;

/// Defines a default constructor: identifier, group and tag of the class.
#define EFFECT_CONSTRUCTOR(Class, Base, Identifier, GroupIdentifier, Tag)                                              \
    Class::Class()                                                                                                     \
        : Base(Identifier, GroupIdentifier)                                                                            \
    {                                                                                                                  \
        tag = Tag;                                                                                                     \
    }

/// Defines what `EFFECT_FILTER_CLASS` declares.
#define EFFECT_FILTER(Class, Base, Identifier, Tag)                                                                    \
    EFFECT_CONSTRUCTOR(Class, Base, Identifier, Identifier, Tag)                                                       \
    EFFECT_FILTER_OVERRIDES(Class, Tag)

/// The same but the constructor.
#define EFFECT_FILTER_OVERRIDES(Class, Tag)                                                                            \
    EFFECT_DEFAULT_TAG(Class, Tag)                                                                                     \
    bool Class::hasIntensity() const                                                                                   \
    {                                                                                                                  \
        return true;                                                                                                   \
    }

/// The same for a video effect whose identifier and tag are named after it. It goes with a family's list in
/// effects/ClassList.h.
#define EFFECT_VIDEO_FILTER(Class) EFFECT_FILTER(Class, VideoEffect, Id::Class, Tags::tag##Class)

/// Defines a class's `defaultTag`.
#define EFFECT_DEFAULT_TAG(Class, Tag)                                                                                 \
    QString Class::defaultTag() const                                                                                  \
    {                                                                                                                  \
        return Tag;                                                                                                    \
    }

/// Defines a setter that stores its argument.
#define EFFECT_SETTER(Class, setter, Argument, field)                                                                  \
    Class * Class::setter(Argument value)                                                                              \
    {                                                                                                                  \
        field = value;                                                                                                 \
        return this;                                                                                                   \
    }
