#include <EditorModel/Resource.h>

#include <map>
#include <mutex>
#include <shared_mutex>
#include <tuple>

#include <EditorSerialization/Layout.h>

#include "Instantiate.h"
#include "PlainForms.h"
#include "RegularFile.h"

#include <QGuiApplication>
#include <QImageReader>

namespace Resource {

using Serialize::field;

namespace {

struct Entries
{
    std::shared_mutex mutex;
    std::map<ID, Registration> byId;
};

Entries & entries()
{
    static Entries entries;
    return entries;
}

constexpr Type allTypes[] = {Type::Blob, Type::Image, Type::Video, Type::Audio, Type::None};

/// The path registered under `name`, first under the types that come first in `types`.
template <class Types> QString findPath(QString const & name, Types const & types)
{
    std::shared_lock const lock(entries().mutex);
    for (Type const type : types) {
        auto const found = entries().byId.find(ID(name, type));
        if (found != entries().byId.end())
            return found->second.path;
    }
    return {};
}

void setError(QString * error, QString const & text)
{
    if (error)
        *error = text;
}

/// Null, and the reason in `error`, when there is no picture.
std::shared_ptr<QPixmap const> readPixmap(QString const & path, QString * error)
{
    auto const fail = [&](QString const & reason) {
        setError(error, path + QLatin1String(": ") + reason);
        return nullptr;
    };
    QFile file(path);
    if (!RegularFile::open(file, error))
        return nullptr;
    QImageReader reader(&file);
    // A few bytes can claim any size, so what the picture will take is asked for before it is read.
    if (reader.canRead()) {
        QSize const size = reader.size();
        if (!size.isValid())
            return fail(QStringLiteral("has no size"));
        if (std::int64_t(size.width()) * size.height() > maxImagePixels)
            return fail(QStringLiteral("has more than %1 pixels").arg(maxImagePixels));
    }
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return fail(QStringLiteral("pictures need a QGuiApplication"));
    QImage const picture = reader.read();
    if (picture.isNull())
        return fail(reader.errorString());
    return std::make_shared<QPixmap const>(QPixmap::fromImage(picture));
}

} // namespace

ID::ID() = default;

ID::ID(QString const & name, Type type)
    : m_name(name)
    , m_type(type)
{}

ID::~ID() = default;

bool ID::operator<(ID const & other) const
{
    return std::tie(m_name, m_type) < std::tie(other.m_name, other.m_type);
}

template <class Archive> void ID::serialize(Archive & archive)
{
    Serialize::fields(archive, field("name", m_name), field("type", m_type));
}

namespace {

constexpr char const * idKeys[] = {"name", "type"};

} // namespace

Serialize::Layout const ID::s_layout =
    Serialize::makeLayout<Serialize::LayoutSource<ID, false, idKeys, &ID::m_name, &ID::m_type>>();

Timing::Timing() = default;

Timing::~Timing() = default;

template <class Archive> void Timing::serialize(Archive & archive)
{
    Serialize::fields(
        archive, field("loopCount", loopCount), field("start", start), field("length", length), field("flags", flags));
}

EDITORMODEL_ARCHIVED(ID)
EDITORMODEL_ARCHIVED(Timing)

void registerResource(ID const & id, QString const & path, int index, MTime length, Timing const & timing)
{
    std::unique_lock const lock(entries().mutex);
    entries().byId.insert_or_assign(id, Registration{path, index, length, timing});
}

bool tryRegisterResource(ID const & id, QString const & path, int index, MTime length, Timing const & timing)
{
    std::unique_lock const lock(entries().mutex);
    return entries().byId.try_emplace(id, Registration{path, index, length, timing}).second;
}

void unregisterResource(ID const & id)
{
    std::unique_lock const lock(entries().mutex);
    entries().byId.erase(id);
}

bool isResourceRegistered(ID const & id)
{
    std::shared_lock const lock(entries().mutex);
    return entries().byId.count(id) != 0;
}

std::optional<Registration> registration(ID const & id)
{
    std::shared_lock const lock(entries().mutex);
    auto const found = entries().byId.find(id);
    return found != entries().byId.end() ? std::optional(found->second) : std::nullopt;
}

QString registeredPath(QString const & name)
{
    return findPath(name, allTypes);
}

std::unique_ptr<Blob> provideBlobResource(QString const & name, QString * error)
{
    auto blob = std::make_unique<Blob>();
    QString const path = registeredPath(name);
    if (path.isEmpty())
        setError(error, QLatin1String("no resource is registered as \"") + name + QLatin1Char('"'));
    else
        blob->data = RegularFile::read(path, maxBlobSize, error).value_or(QByteArray());
    return blob;
}

std::unique_ptr<Image> provideImageResource(QString const & name, QString * error)
{
    constexpr Type imageFirst[] = {Type::Image, Type::Blob, Type::Video, Type::Audio, Type::None};
    QString const path = findPath(name, imageFirst);
    if (path.isEmpty()) {
        setError(error, QLatin1String("no resource is registered as \"") + name + QLatin1Char('"'));
        return nullptr;
    }
    auto image = std::make_unique<Image>();
    image->pixmap = readPixmap(path, error);
    return image;
}

} // namespace Resource
