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

template <class Archive> void Record::serialize(Archive &) {}

} // namespace Sample

// What a class of a real library has of its registration.
#define TEST_CLASS(Class)                                                                                              \
    template <> struct boost::serialization::guid_defined<Class> : boost::mpl::true_                                   \
    {};                                                                                                                \
    template <> struct boost::serialization::ext::guid_impl<Class>                                                     \
    {                                                                                                                  \
        static char const * call() { return Class::NameInArchive(); }                                                  \
    };                                                                                                                 \
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
    template struct boost::archive::detail::ptr_serialization_support<Serialize::BinaryOArchive, Class>;               \
    template struct boost::archive::detail::ptr_serialization_support<Serialize::BinaryIArchive, Class>;               \
    template struct boost::archive::detail::ptr_serialization_support<Serialize::Json::oarchive, Class>;               \
    template struct boost::archive::detail::ptr_serialization_support<Serialize::Json::iarchive, Class>;               \
    template struct boost::archive::detail::ptr_serialization_support<Serialize::ObjectTracker, Class>;

TEST_CLASS(Sample::Effect)
TEST_CLASS(Sample::Record)

namespace {

template <class Class> struct Creator final : Serialize::BaseCreator
{
    Creator() { boost::serialization::void_cast_register<Class, Serialize::ISerializable>(); }
    Serialize::ISerializable * create() const override { return new (std::nothrow) Class; }
};

Serialize::Registrator const effectRegistrator(Sample::Effect::NameInArchive(), new Creator<Sample::Effect>);
Serialize::Registrator const recordRegistrator(Sample::Record::NameInArchive(), new Creator<Sample::Record>);

} // namespace
