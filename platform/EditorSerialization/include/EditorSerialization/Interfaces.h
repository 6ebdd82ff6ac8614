/// @file
/// The two polymorphic interfaces through which an object can be written and read.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <EditorSerialization/ISerializable.h>

#include <QString>

namespace Serialize {

/// Takes plain values in order. What a value means is told by the name before it.
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

/// Gives plain values in the order in which they were written; throws when something else stands there.
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
    /// Fills one value in. It must stand there in this very form.
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
    /// Where the values between the objects go.
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
    /// Where the values between the objects come from.
    virtual IValueReader & values() = 0;
    virtual ~IDeserializer();
};

/// Marks that what follows belongs to a base class, once for each level.
EDITORSERIALIZATION_EXPORT void addBaseName(ISerializer & serializer);
/// The same for reading.
EDITORSERIALIZATION_EXPORT void addBaseName(IDeserializer & deserializer);

} // namespace Serialize
