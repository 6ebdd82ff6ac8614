/// @file
/// The base of all archived classes.
#pragma once

#include <string>
#include <type_traits>

#include <boost/serialization/serialization.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize {

class ISerializer;
class IDeserializer;
struct Layout;

/// An object with an archive name and the two polymorphic interfaces.
class EDITORSERIALIZATION_EXPORT ISerializable
{
public:
    virtual ~ISerializable();

    /// The archive name of the object's class, such as "Effect::Crop".
    virtual std::string GetNameInArchive() const = 0;
    /// Writes the content, without the name.
    virtual void Serialize(ISerializer & serializer) const = 0;
    /// Reads the content into this object. Throws if the input does not match; fields read before keep their new
    /// values.
    virtual void Deserialize(IDeserializer & deserializer) = 0;
    /// The table of the class's fields, see <EditorSerialization/Layout.h>; null for a class that has none.
    virtual Layout const * GetLayout() const;

protected:
    ISerializable() = default;
    ISerializable(ISerializable const &) = default;
    ISerializable(ISerializable &&) = default;
    ISerializable & operator=(ISerializable const &) = default;
    ISerializable & operator=(ISerializable &&) = default;
};

/// Gives the archives access to a class's private `serialize`; a friend of every class.
struct Access
{
    /// Calls the object's own `serialize`.
    template <class Archive, class T> static void serialize(Archive & archive, T & object)
    {
        object.serialize(archive);
    }

    /// The class's own table of its fields, see <EditorSerialization/Layout.h>.
    template <class T> static constexpr Layout const * layout() { return &T::s_layout; }

    /// Whether `T` declares a `serialize` of its own. An inherited one would archive only the base.
    template <class T, class Archive> static constexpr bool hasOwnSerialize()
    {
        return std::is_same_v<decltype(&T::template serialize<Archive>), void (T::*)(Archive &)>;
    }
};

/// Hooks the versionless `serialize(Archive &)` of our classes into the archive framework, which finds this overload
/// through the base class. The third parameter must have this type; with a plain integer the call is ambiguous.
template <class Archive, class T, class = std::enable_if_t<std::is_base_of_v<ISerializable, T>>>
void serialize(Archive & archive, T & object, boost::serialization::version_type)
{
    Access::serialize(archive, object);
}

} // namespace Serialize
