/// @file
/// The files that effects refer to, and the registry that finds them.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include <boost/serialization/level.hpp>
#include <boost/serialization/tracking.hpp>

#include <EditorModel/Export.h>
#include <EditorSerialization/ISerializable.h>
#include <MTime/MTime.h>

#include <QByteArray>
#include <QPixmap>
#include <QString>

namespace Resource {

/// What a resource is.
enum class Type : std::int32_t
{
    None = 0,
    Video = 1,
    Audio = 2,
    Image = 3,
    Blob = 4, ///< opaque bytes: LUT and shader files
};

/// The name of a resource and its type. Two resources of different types may share a name.
class EDITORMODEL_EXPORT ID : public Serialize::ISerializable
{
public:
    ID();
    /// Any name and type.
    ID(QString const & name, Type type);
    ID(ID const &) = default;
    ID(ID &&) = default;
    ID & operator=(ID const &) = default;
    ID & operator=(ID &&) = default;
    ~ID() override;

    QString const & name() const { return m_name; } ///< of the resource, not of a file
    Type type() const { return m_type; }            ///< what it is
    /// Whether it has a name and a type.
    bool isValid() const { return !m_name.isEmpty() && m_type != Type::None; }

    /// By name and type.
    bool operator==(ID const & other) const { return m_type == other.m_type && m_name == other.m_name; }
    bool operator!=(ID const & other) const { return !(*this == other); }
    /// By name, then by type.
    bool operator<(ID const & other) const;

    static constexpr char const * NameInArchive() { return "Resource::ID"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
    static Serialize::Layout const s_layout;

    QString m_name{QLatin1String("")};
    Type m_type = Type::None;
};

/// How a resource runs in time.
struct EDITORMODEL_EXPORT Timing : public Serialize::ISerializable
{
    int loopCount = 0; ///< stored, not interpreted here
    MTime start;       ///< where it begins
    MTime length;      ///< zero when the resource has none of its own
    int flags = 0;     ///< stored, not interpreted here

    Timing();
    Timing(Timing const &) = default;
    Timing(Timing &&) = default;
    Timing & operator=(Timing const &) = default;
    Timing & operator=(Timing &&) = default;
    ~Timing() override;

    static constexpr char const * NameInArchive() { return "Resource::Timing"; }
    std::string GetNameInArchive() const override;
    void Serialize(Serialize::ISerializer & serializer) const override;
    void Deserialize(Serialize::IDeserializer & deserializer) override;

private:
    friend Serialize::Access;
    template <class Archive> void serialize(Archive & archive);
};

/// The bytes of a resource.
struct Blob
{
    QByteArray data; ///< empty for what is missing or unreadable
};

/// The picture of a resource.
struct Image
{
    std::shared_ptr<QPixmap const> pixmap; ///< null for what is missing or no picture
};

/// @name The registry
/// One for the process, safe to call from any thread.
/// @{

/// Registers a file under `id`. A later registration replaces an earlier one.
/// @param path    of the file, read when it is asked for
/// @param index   of the stream in the file
/// @param length  zero when the resource has no length of its own
EDITORMODEL_EXPORT void registerResource(
    ID const & id, QString const & path, int index, MTime length, Timing const & timing);
/// The same, unless a file is registered under `id` already. Returns whether it was registered here.
EDITORMODEL_EXPORT bool tryRegisterResource(
    ID const & id, QString const & path, int index, MTime length, Timing const & timing);
/// Removes a registration, if there is one.
EDITORMODEL_EXPORT void unregisterResource(ID const & id);
/// Whether a file is registered under exactly that name and type.
EDITORMODEL_EXPORT bool isResourceRegistered(ID const & id);

/// What a resource was registered with.
struct Registration
{
    QString path;  ///< of the file
    int index = 0; ///< of the stream in the file
    MTime length;  ///< zero when the resource has none of its own
    Timing timing; ///< as it was registered
};

/// Nothing for a resource that is not registered.
EDITORMODEL_EXPORT std::optional<Registration> registration(ID const & id);

/// The file registered under that name: as a blob, else under any other type. Empty when there is none.
EDITORMODEL_EXPORT QString registeredPath(QString const & name);

/// The bytes of the regular file registered under that name. Never null; the blob of what is missing, unreadable or
/// larger than `maxBlobSize` is empty.
/// @param error  if not null, receives the reason why the blob is empty
EDITORMODEL_EXPORT std::unique_ptr<Blob> provideBlobResource(QString const & name, QString * error);

/// The picture in the regular file registered under that name, as an image before other types; null when nothing is
/// registered. Pixmaps, and so pictures, need a QGuiApplication.
/// @param error  if not null, receives the reason why there is no picture
EDITORMODEL_EXPORT std::unique_ptr<Image> provideImageResource(QString const & name, QString * error);

inline constexpr std::int64_t maxBlobSize = std::int64_t(256) << 20;    ///< bytes
inline constexpr std::int64_t maxImagePixels = std::int64_t(128) << 20; ///< one with more is no picture

/// @}

} // namespace Resource

BOOST_CLASS_IMPLEMENTATION(Resource::ID, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(Resource::ID, boost::serialization::track_never)
BOOST_CLASS_IMPLEMENTATION(Resource::Timing, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(Resource::Timing, boost::serialization::track_never)
