#include "TestEffect.h"

#include <new>

#include <boost/serialization/export.hpp>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/ObjectTracker.h>
#include <EditorSerialization/Traversal.h>

namespace Sample {

using Serialize::field;

Effect::Effect()
    : Object("the-id", "the-group")
{}

template <class Archive> void Effect::serialize(Archive & archive)
{
    Serialize::fields<Object>(archive, *this, field("level", level));
}

Ranged::Ranged()
    : Object("ranged-id", "ranged-id")
{
    range = Types::Range(MTime(1), MTime(2));
}

template <class Archive> void Ranged::serialize(Archive & archive)
{
    Serialize::fields<Object>(archive, *this);
}

template <class Archive> void Record::serialize(Archive &) {}

} // namespace Sample

// What a class of a real library has of its registration.
#define TEST_CLASS(Class)                                                                                              \
    std::string Class::GetNameInArchive() const                                                                        \
    {                                                                                                                  \
        return NameInArchive();                                                                                        \
    }                                                                                                                  \
    void Class::Serialize(Serialize::ISerializer & serializer) const                                                   \
    {                                                                                                                  \
        const_cast<Class *>(this)->serialize(serializer);                                                              \
    }                                                                                                                  \
    void Class::Deserialize(Serialize::IDeserializer & deserializer)                                                   \
    {                                                                                                                  \
        serialize(deserializer);                                                                                       \
    }                                                                                                                  \
    TEST_ARCHIVE(Class, BinaryOArchive)                                                                                \
    TEST_ARCHIVE(Class, BinaryIArchive)                                                                                \
    TEST_ARCHIVE(Class, Json::oarchive)                                                                                \
    TEST_ARCHIVE(Class, Json::iarchive)                                                                                \
    TEST_ARCHIVE(Class, ObjectTracker)
#define TEST_ARCHIVE(Class, Archive)                                                                                   \
    template void Class::serialize(Serialize::Archive &);                                                              \
    template struct boost::archive::detail::ptr_serialization_support<Serialize::Archive, Class>;

TEST_CLASS(Sample::Effect)
TEST_CLASS(Sample::Ranged)
TEST_CLASS(Sample::Record)

namespace {

template <class Class> struct Creator final : Serialize::BaseCreator
{
    Creator() { boost::serialization::void_cast_register<Class, Serialize::ISerializable>(); }
    Serialize::ISerializable * create() const override { return new (std::nothrow) Class; }
};

Serialize::Registrator const effectRegistrator(Sample::Effect::NameInArchive(), new Creator<Sample::Effect>);
Serialize::Registrator const rangedRegistrator(Sample::Ranged::NameInArchive(), new Creator<Sample::Ranged>);
Serialize::Registrator const recordRegistrator(Sample::Record::NameInArchive(), new Creator<Sample::Record>);

} // namespace
