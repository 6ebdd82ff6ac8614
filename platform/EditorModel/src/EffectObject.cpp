#include <EditorModel/EffectObject.h>

#include "Instantiate.h"

using Serialize::field;

namespace EditorCollection {

Payload::DownloadResourceType Payload::downloadResourceType() const
{
    return DownloadResourceType::None;
}

} // namespace EditorCollection

namespace Effect {

Object::Object(QString const & effectId, QString const & group)
    : id(effectId)
    , groupId(group)
{}

Object::~Object() = default;

QString const & Object::mimeType() const
{
    static QString const type = QStringLiteral("application/x-editor-effect");
    return type;
}

QString Object::processingSettingsId() const
{
    return id;
}

bool Object::hasIntensity() const
{
    return false;
}

bool Object::isTwoInput() const
{
    return false;
}

QString Object::defaultTag() const
{
    return QStringLiteral("");
}

// An item is found by its kind and, since many items are of one kind, by the resource that sets it apart.
QString Object::generateItemFindingId() const
{
    return resource.name().isEmpty() ? id + QLatin1Char(':') + tag : id + QLatin1Char(':') + resource.name();
}

QString Object::generateLegacyItemFindingId() const
{
    return tag;
}

template <class Archive> void Object::serialize(Archive & archive)
{
    Serialize::fields(archive, field("tag", tag), field("id", id), field("groupId", groupId),
        field("intensity", intensity), field("resource", resource), field("resourcePath", resourcePath),
        field("range", range));
}

EDITORMODEL_ARCHIVED(Object)

} // namespace Effect
