#pragma once

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/ObjectTracker.h>

/// Defines what an archived class of this library declares, for the seven kinds of reader and writer.
#define EDITORMODEL_ARCHIVED(Class)                                                                                    \
    std::string Class::GetNameInArchive() const                                                                        \
    {                                                                                                                  \
        return NameInArchive();                                                                                        \
    }                                                                                                                  \
    void Class::Serialize(::Serialize::ISerializer & serializer) const                                                 \
    {                                                                                                                  \
        const_cast<Class *>(this)->serialize(serializer);                                                              \
    }                                                                                                                  \
    void Class::Deserialize(::Serialize::IDeserializer & deserializer)                                                 \
    {                                                                                                                  \
        serialize(deserializer);                                                                                       \
    }                                                                                                                  \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::ISerializer &);                                     \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::IDeserializer &);                                   \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::BinaryOArchive &);                                  \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::BinaryIArchive &);                                  \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::Json::oarchive &);                                  \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::Json::iarchive &);                                  \
    template EDITORMODEL_EXPORT void Class::serialize(::Serialize::ObjectTracker &);
