/// @file
/// The root of everything that can stand in an archive.
#pragma once

#include <string>
#include <type_traits>

#include <boost/serialization/serialization.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize {

class ISerializer;
class IDeserializer;
struct Layout;

/// An object that knows its name in archives and walks the two polymorphic interfaces.
class EDITORSERIALIZATION_EXPORT ISerializable
{
public:
    virtual ~ISerializable();

    /// The archive name of the object's class, such as "Effect::Crop".
    virtual std::string GetNameInArchive() const = 0;
    /// Writes the content, without the name.
    virtual void Serialize(ISerializer & serializer) const = 0;
    /// Reads the content over what is there. Throws where something else stands than was written; what was read until
    /// then stays.
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

/// Lets the archives reach a class's private `serialize`; every class befriends it.
struct Access
{
    /// Calls the object's own `serialize`.
    template <class Archive, class T> static void serialize(Archive & archive, T & object)
    {
        object.serialize(archive);
    }

    /// The class's own table of its fields, see <EditorSerialization/Layout.h>.
    template <class T> static constexpr Layout const * layout() { return &T::s_layout; }

    /// Whether `T` declares a `serialize` of its own. One that it merely inherits would archive the base alone.
    template <class T, class Archive> static constexpr bool hasOwnSerialize()
    {
        return std::is_same_v<decltype(&T::template serialize<Archive>), void (T::*)(Archive &)>;
    }
};

/// Hooks the versionless `serialize(Archive &)` of our classes into the archive framework, which finds this overload
/// through the base class. The third parameter has to be this very type: with a plain integer the call is ambiguous.
template <class Archive, class T, class = std::enable_if_t<std::is_base_of_v<ISerializable, T>>>
void serialize(Archive & archive, T & object, boost::serialization::version_type)
{
    Access::serialize(archive, object);
}

} // namespace Serialize
