/// @file
/// Classes as a host has them: archived, and with an eye on their instances.
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/ObjectTracker.h>
#include <EditorSerialization/Registry.h>

#include <boost/serialization/export.hpp>

#include <QString>

namespace Host {

/// Stands first in a class of this file.
#define HOST_CLASS(Class)                                                                                              \
public:                                                                                                                \
    static char const * NameInArchive()                                                                                \
    {                                                                                                                  \
        return "Host::" #Class;                                                                                        \
    }                                                                                                                  \
    std::string GetNameInArchive() const override                                                                      \
    {                                                                                                                  \
        return NameInArchive();                                                                                        \
    }                                                                                                                  \
    void Serialize(Serialize::ISerializer & serializer) const override                                                 \
    {                                                                                                                  \
        const_cast<Class *>(this)->serialize(serializer);                                                              \
    }                                                                                                                  \
    void Deserialize(Serialize::IDeserializer & deserializer) override                                                 \
    {                                                                                                                  \
        serialize(deserializer);                                                                                       \
    }                                                                                                                  \
                                                                                                                       \
private:                                                                                                               \
    friend Serialize::Access;                                                                                          \
                                                                                                                       \
public:

/// Knows which of its instances live.
struct Counted : Serialize::ISerializable
{
    Counted() { instances.insert(this); }
    Counted(Counted const &) { instances.insert(this); }
    Counted & operator=(Counted const &) = default;
    ~Counted() override { instances.erase(this); }

    static inline std::set<Counted const *> instances;
};

/// One value of each form.
struct Leaf : Counted
{
    HOST_CLASS(Leaf)

    QString text{QLatin1String("")};
    std::string bytes;
    std::int64_t longNumber = 0;
    double real = 0;
    std::uint32_t color = 0;
    std::int32_t number = 0;
    bool flag = false;

private:
    template <class Archive> void serialize(Archive & archive)
    {
        using Serialize::field;
        Serialize::fields(archive, field("text", text), field("bytes", bytes), field("longNumber", longNumber),
            field("real", real), field("color", color), field("number", number), field("flag", flag));
    }
};

/// Owns objects.
struct Node : Counted
{
    HOST_CLASS(Node)

    std::deque<std::unique_ptr<Serialize::ISerializable>> children;

private:
    template <class Archive> void serialize(Archive & archive)
    {
        Serialize::fields(archive, Serialize::field("children", children));
    }
};

/// Has leaves by value.
struct Branch : Counted
{
    HOST_CLASS(Branch)

    std::deque<Leaf> leaves;

private:
    template <class Archive> void serialize(Archive & archive)
    {
        Serialize::fields(archive, Serialize::field("leaves", leaves));
    }
};

/// May have a leaf, and always has three numbers.
struct Parcel : Counted
{
    HOST_CLASS(Parcel)

    std::optional<Leaf> leaf;
    std::array<double, 3> numbers{};

private:
    template <class Archive> void serialize(Archive & archive)
    {
        using Serialize::field;
        Serialize::fields(archive, field("leaf", leaf), field("numbers", numbers));
    }
};

/// Is registered nowhere.
struct Unknown : Counted
{
    HOST_CLASS(Unknown)

private:
    template <class Archive> void serialize(Archive &) {}
};

/// A node in a node, `depth` of them, the outermost counted.
std::unique_ptr<Node> nested(int depth);

} // namespace Host

BOOST_CLASS_EXPORT_KEY(Host::Leaf)
BOOST_CLASS_EXPORT_KEY(Host::Node)
BOOST_CLASS_EXPORT_KEY(Host::Branch)
BOOST_CLASS_EXPORT_KEY(Host::Parcel)
