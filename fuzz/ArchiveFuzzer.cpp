// Effects from foreign bytes: each of the three forms either reads them or says what is wrong with them. What was read
// is written and read back.

#include <cstddef>
#include <cstdint>
#include <exception>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <EditorSerialization/StreamSerializer.h>

namespace {

void check(Effect::Object const & effect)
{
    std::string const document = Effect::Archive::toJson(effect);
    std::string const bytes = Effect::Archive::toBinary(effect);
    if (Effect::Archive::toBinary(*Effect::Archive::fromBinary(bytes)) != bytes)
        throw std::logic_error("the binary form does not read back the same");
    if (Effect::Archive::toJson(*Effect::Archive::fromJson(document)).empty())
        throw std::logic_error("the JSON form does not read back");
}

template <class Read> void tryTo(Read const & read)
{
    std::unique_ptr<Effect::Object> effect;
    try {
        effect = read();
    } catch (std::exception const &) {
        return;
    }
    if (effect)
        check(*effect);
}

/// Documents take any bytes, and one that has not been changed is the file that was read.
void checkDocument(std::string_view bytes)
{
    using Effect::Archive::Document;
    Document const document = Document::read(bytes);
    if (document.effect() && (Effect::Archive::isBinary(bytes) ? document.toBinary() : document.toJson()) != bytes)
        throw std::logic_error("a document that was not changed is another file than before");
    Document const salvaged = Document::salvage(bytes);
    if (salvaged.effect())
        check(*salvaged.effect());
    if (document.effect() && !salvaged.effect())
        throw std::logic_error("less can be salvaged than read");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string_view const bytes(reinterpret_cast<char const *>(data), size);
    checkDocument(bytes);
    tryTo([&] { return Effect::Archive::fromBinary(bytes); });
    tryTo([&] { return Effect::Archive::fromJson(bytes); });
    tryTo([&] {
        std::stringbuf buffer{std::string(bytes)};
        Serialize::StreamDeserializer deserializer(buffer);
        std::unique_ptr<Serialize::ISerializable> object;
        deserializer.read(object);
        auto * const effect = dynamic_cast<Effect::Object *>(object.get());
        if (effect)
            object.release();
        return std::unique_ptr<Effect::Object>(effect);
    });
    return 0;
}
