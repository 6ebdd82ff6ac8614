#include <EditorModel/EffectArchive.h>

#include <streambuf>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/Layout.h>

#include <nlohmann/json.hpp>

namespace Effect::Archive {

namespace {

/// Reads from memory that stays where it is.
class MemoryReader : public std::streambuf
{
public:
    explicit MemoryReader(std::string_view bytes)
    {
        char * const start = const_cast<char *>(bytes.data());
        setg(start, start, start + bytes.size());
    }
    std::size_t offset() const { return static_cast<std::size_t>(gptr() - eback()); }
};

/// Appends to a string.
class StringWriter : public std::streambuf
{
public:
    std::string bytes;

private:
    std::streamsize xsputn(char const * data, std::streamsize count) override
    {
        bytes.append(data, static_cast<std::size_t>(count));
        return count;
    }
    int_type overflow(int_type unit) override
    {
        if (!traits_type::eq_int_type(unit, traits_type::eof()))
            bytes.push_back(traits_type::to_char_type(unit));
        return traits_type::not_eof(unit);
    }
};

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

std::string toBinary(Object const & effect)
{
    StringWriter writer;
    Serialize::BinaryOArchive archive(writer);
    Object const * const pointer = &effect;
    archive << pointer;
    return std::move(writer.bytes);
}

std::unique_ptr<Object> fromBinary(std::string_view bytes)
{
    MemoryReader reader(bytes);
    Serialize::BinaryIArchive archive(reader);
    std::unique_ptr<Object> effect;
    archive >> effect;
    if (reader.offset() != bytes.size())
        throw Serialize::ArchiveError(Serialize::ArchiveError::other_exception,
            "the archive goes on after the effect, at byte " + std::to_string(reader.offset()));
    return notNull(std::move(effect));
}

} // namespace Effect::Archive
