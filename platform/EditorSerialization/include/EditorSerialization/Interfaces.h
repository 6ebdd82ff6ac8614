/// @file
/// The two polymorphic interfaces for writing and reading objects.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <EditorSerialization/ISerializable.h>

#include <QString>

namespace Serialize {

/// Receives plain values in order, each after its name.
class EDITORSERIALIZATION_EXPORT IValueWriter
{
public:
    virtual void endItem() = 0;                      ///< after the content of an item
    virtual void beginItem(std::int32_t number) = 0; ///< counted from 1
    virtual void endArray() = 0;                     ///< after its last item
    virtual void beginArray(std::int32_t count) = 0; ///< `count` items follow
    /// What follows is the value of that name.
    virtual void name(char const * name) = 0;
    /// @{
    /// Writes one value in its own form.
    virtual void value(QString const & value) = 0;
    virtual void value(std::string const & value) = 0;
    virtual void value(std::int64_t value) = 0;
    virtual void value(double value) = 0;
    virtual void value(std::uint32_t value) = 0;
    virtual void value(std::int32_t value) = 0;
    virtual void value(bool value) = 0;
    /// @}
    virtual ~IValueWriter();
};

/// Returns plain values in the order in which they were written; throws if the input differs.
class EDITORSERIALIZATION_EXPORT IValueReader
{
public:
    virtual void endItem() = 0;                        ///< after the content of an item
    virtual void beginItem(std::int32_t number) = 0;   ///< counted from 1
    virtual void endArray() = 0;                       ///< after its last item
    virtual void beginArray(std::int32_t & count) = 0; ///< fills `count` in
    /// What follows must be the value of that name.
    virtual void name(char const * name) = 0;
    /// @{
    /// Reads one value. It must have been written with the same type.
    virtual void value(QString & value) = 0;
    virtual void value(std::string & value) = 0;
    virtual void value(std::int64_t & value) = 0;
    virtual void value(double & value) = 0;
    virtual void value(std::uint32_t & value) = 0;
    virtual void value(std::int32_t & value) = 0;
    virtual void value(bool & value) = 0;
    /// @}
    virtual ~IValueReader();
};

/// Writes objects.
class EDITORSERIALIZATION_EXPORT ISerializer
{
public:
    /// Writes an object with its dynamic class; null is allowed.
    virtual void write(ISerializable const * object) = 0;
    /// Writes an object whose class the reader knows.
    virtual void write(ISerializable const & object) = 0;
    /// Receives the values between the objects.
    virtual IValueWriter & values() = 0;
    virtual ~ISerializer();
};

/// Reads objects.
class EDITORSERIALIZATION_EXPORT IDeserializer
{
public:
    /// Reads an object of any registered class, or null, into the holder that owns it.
    virtual void read(std::unique_ptr<ISerializable> & holder) = 0;
    /// Reads an object whose class the caller knows into place.
    virtual void read(ISerializable & object) = 0;
    /// Provides the values between the objects.
    virtual IValueReader & values() = 0;
    virtual ~IDeserializer();
};

/// Marks that what follows belongs to a base class, once for each level.
EDITORSERIALIZATION_EXPORT void addBaseName(ISerializer & serializer);
/// The same for reading.
EDITORSERIALIZATION_EXPORT void addBaseName(IDeserializer & deserializer);

} // namespace Serialize
