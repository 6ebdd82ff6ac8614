#include <EditorModel/EffectObject.h>

#include <cstddef>
#include <type_traits>

#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>

#include "Instantiate.h"

using Serialize::field;

namespace EditorCollection {

Payload::DownloadResourceType Payload::downloadResourceType() const
{
    return DownloadResourceType::None;
}

} // namespace EditorCollection

namespace Effect {

namespace {

/// Whether a new effect of the same class has a range.
bool isConstructedWithRange(Object const & effect)
{
    if (::Serialize::Layout const * const layout = effect.GetLayout())
        return layout->newHasOptional && layout->newHasOptional();
    auto const created = ::Serialize::Registry::create(effect.GetNameInArchive());
    auto const * const newEffect = dynamic_cast<Object const *>(created.get());
    return newEffect && newEffect->range;
}

} // namespace

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
    // Without a key, a range that was removed would come back with the constructor that sets one.
    if constexpr (std::is_same_v<Archive, ::Serialize::Json::oarchive>) {
        std::nullptr_t const none = nullptr;
        if (!range && isConstructedWithRange(*this))
            Serialize::fields(archive, field("range", none));
    }
}

EDITORMODEL_ARCHIVED(Object)

::Serialize::Layout const * Object::GetLayout() const
{
    return nullptr;
}

namespace {

constexpr char const * objectKeys[] = {"tag", "id", "groupId", "intensity", "resource", "resourcePath", "range"};

} // namespace

Serialize::Layout const Object::s_layout =
    Serialize::makeLayout<Serialize::LayoutSource<Object, true, objectKeys, &Object::tag, &Object::id, &Object::groupId,
        &Object::intensity, &Object::resource, &Object::resourcePath, &Object::range>>();

} // namespace Effect
