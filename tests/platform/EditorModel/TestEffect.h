/// @file
/// Effects for tests, registered as "Sample::Effect" and "Sample::Ranged", and a record that is no effect,
/// "Sample::Record".
#pragma once

#include <string>

#include <boost/serialization/export.hpp>

#include <EditorModel/EffectObject.h>
#include <EditorSerialization/Registry.h>

namespace Sample {

class Effect : public ::Effect::Object
{
public:
    Effect();

    int level = 3;

    ::Effect::Type type() const override { return ::Effect::Type::Audio; }
    ::Effect::Impl impl() const override { return ::Effect::Impl::Filter; }

    using Object::generateItemFindingId;
    using Object::generateLegacyItemFindingId;

    static char const * NameInArchive() { return "Sample::Effect"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
};

/// An effect whose constructor sets a range.
class Ranged : public ::Effect::Object
{
public:
    Ranged();

    ::Effect::Type type() const override { return ::Effect::Type::Video; }
    ::Effect::Impl impl() const override { return ::Effect::Impl::Descriptor; }

    static char const * NameInArchive() { return "Sample::Ranged"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
};

class Record : public Serialize::ISerializable
{
public:
    static char const * NameInArchive() { return "Sample::Record"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
};

/// An effect that no archive knows.
class Stranger : public Effect
{
public:
    std::string GetNameInArchive() const override { return "Sample::Stranger"; }
};

} // namespace Sample

BOOST_CLASS_EXPORT_KEY(Sample::Effect)
BOOST_CLASS_EXPORT_KEY(Sample::Ranged)
BOOST_CLASS_EXPORT_KEY(Sample::Record)
