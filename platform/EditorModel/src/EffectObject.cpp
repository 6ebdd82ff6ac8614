#include <EditorModel/EffectObject.h>

#include <cstddef>
#include <mutex>
#include <shared_mutex>
#include <string>
#include <type_traits>
#include <unordered_map>

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
    struct Classes
    {
        std::shared_mutex mutex;
        std::unordered_map<std::string, bool> byName;
    };
    // Never destroyed: effects may still be saved by the destructors of statics.
    static auto & classes = *new Classes;

    std::string const name = effect.GetNameInArchive();
    {
        std::shared_lock const lock(classes.mutex);
        auto const known = classes.byName.find(name);
        if (known != classes.byName.end())
            return known->second;
    }
    auto const created = ::Serialize::Registry::create(name);
    auto const * const newEffect = dynamic_cast<Object const *>(created.get());
    // Not kept: the class may be registered later.
    if (!newEffect)
        return false;
    bool const hasRange = newEffect->range.has_value();
    std::unique_lock const lock(classes.mutex);
    return classes.byName.emplace(name, hasRange).first->second;
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

namespace {

constexpr char const * objectKeys[] = {"tag", "id", "groupId", "intensity", "resource", "resourcePath", "range"};

} // namespace

Serialize::Layout const Object::s_layout =
    Serialize::makeLayout<Object, objectKeys, &Object::tag, &Object::id, &Object::groupId, &Object::intensity,
        &Object::resource, &Object::resourcePath, &Object::range>("Effect::Object", true);

} // namespace Effect
