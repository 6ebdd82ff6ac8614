#include <EditorModel/EffectArchive.h>

#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/Layout.h>

#include <nlohmann/json.hpp>

#include "BinaryForm.h"

namespace Effect::Archive {

namespace {

/// `dynamic_cast` for an object that has been read by its layout: every effect's ends in the base's.
Object * asEffect(Serialize::ISerializable * object)
{
    Serialize::Layout const * layout = object ? object->GetLayout() : nullptr;
    while (layout && layout->base)
        layout = layout->base;
    return layout == Serialize::Access::layout<Object>() ? static_cast<Object *>(object) : nullptr;
}

std::unique_ptr<Object> notNull(std::unique_ptr<Object> effect)
{
    if (!effect)
        throw Serialize::ArchiveError(Serialize::ArchiveError::other_exception, "the archive holds no effect");
    return effect;
}

} // namespace

std::string toJson(Object const & effect)
{
    if (std::string text = Serialize::Json::writeObject(effect); !text.empty())
        return text;
    nlohmann::json document;
    Serialize::Json::oarchive archive(document);
    Object const * const pointer = &effect;
    archive << pointer;
    return document.dump();
}

std::unique_ptr<Object> fromJson(std::string_view text)
{
    std::unique_ptr<Serialize::ISerializable> object = Serialize::Json::readObject(text);
    if (auto * const effect = asEffect(object.get())) {
        object.release();
        return std::unique_ptr<Object>(effect);
    }
    nlohmann::json const document = Serialize::Json::parse(text);
    Serialize::Json::iarchive archive(document);
    std::unique_ptr<Object> effect;
    archive >> effect;
    return notNull(std::move(effect));
}

bool isBinary(std::string_view bytes)
{
    return isBinaryForm(bytes);
}

std::string toBinary(Object const & effect)
{
    return writeBinaryForm(effect);
}

std::unique_ptr<Object> fromBinary(std::string_view bytes)
{
    BinaryRead read = readBinaryForm(bytes, false);
    if (read.error)
        throw *read.error;
    return std::move(read.effect);
}

} // namespace Effect::Archive
