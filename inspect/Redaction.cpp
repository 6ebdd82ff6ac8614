#include <inspect/Redaction.h>

#include <map>
#include <set>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonTree.h>
#include <effects/Schema.h>
#include <inspect/Failure.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

using nlohmann::ordered_json;
using Schema::Class;
using Schema::Parameter;

namespace {

/// What the library itself puts into files.
struct Vocabulary
{
    std::set<std::string> keys{"$meta", "class", "id", "ref", "effect", "categories", "name", "type", "m", "start",
        "length", "$utf16", "$bytes"};
    std::set<std::string> texts{"", "Infinity", "-Infinity", "NaN"};

    Vocabulary()
    {
        for (Class const * const info : Schema::classes()) {
            keys.insert(info->name);
            texts.insert(info->name);
            for (QString const & text : {info->id, info->groupId, info->tag, info->defaultTag})
                texts.insert(text.toStdString());
            for (Parameter const & parameter : info->parameters) {
                keys.insert(parameter.key);
                // The pointer leads through the records of the bases, some of which no class of the library is.
                std::string const & pointer = parameter.pointer;
                for (std::size_t start = 1; start <= pointer.size();) {
                    std::size_t const end = std::min(pointer.find('/', start), pointer.size());
                    keys.insert(pointer.substr(start, end - start));
                    texts.insert(pointer.substr(start, end - start));
                    start = end + 1;
                }
            }
        }
    }
};

Vocabulary const & vocabulary()
{
    static Vocabulary const vocabulary;
    return vocabulary;
}

/// Suffixes that say what kind of file it is and nothing else.
bool isUsual(std::string const & suffix)
{
    static std::set<std::string> const usual{".3dl", ".bmp", ".csp", ".cube", ".frag", ".fs", ".gif", ".isf", ".jpeg",
        ".jpg", ".json", ".mov", ".mp3", ".mp4", ".png", ".spi3d", ".svg", ".vert", ".vs", ".wav", ".webp"};
    return usual.count(suffix) > 0;
}

class Redactor
{
public:
    explicit Redactor(ordered_json const & tree) { collect(tree); }

    /// @param isKnown  whether the library knows what the value is
    void redact(ordered_json & value, bool isKnown)
    {
        if (value.is_string()) {
            std::string const & text = value.get_ref<std::string const &>();
            if (vocabulary().texts.count(text) == 0)
                value = replacement("text", text);
        } else if (isEncodedText(value)) {
            value = replacement("text", value.dump());
        } else if (value.is_array()) {
            for (ordered_json & element : value)
                redact(element, isKnown);
        } else if (value.is_object()) {
            ordered_json redacted = ordered_json::object();
            for (auto & [key, member] : value.items()) {
                bool const isKnownKey = vocabulary().keys.count(key) > 0;
                redact(member, isKnown && isKnownKey);
                redacted[isKnownKey ? key : replacement("key", key)] = std::move(member);
            }
            value = std::move(redacted);
        } else if (value.is_number() && !isKnown) {
            value = 0;
        }
    }

private:
    void collect(ordered_json const & value)
    {
        if (value.is_string())
            m_originals.insert(value.get<std::string>());
        if (value.is_object())
            for (auto const & [key, member] : value.items())
                m_originals.insert(key);
        if (value.is_structured())
            for (ordered_json const & member : value)
                collect(member);
    }

    /// Texts and bytes that are no Unicode are objects with one member, which would be readable to who decodes them.
    static bool isEncodedText(ordered_json const & value)
    {
        return value.is_object() && value.size() == 1 && (value.contains("$utf16") || value.contains("$bytes"));
    }

    std::string const & replacement(std::string const & kind, std::string const & original)
    {
        std::string & known = m_replacements[kind + original];
        if (!known.empty())
            return known;
        std::size_t const dot = original.rfind('.');
        std::string const suffix = dot == original.npos ? std::string() : original.substr(dot);
        std::size_t & count = m_counts[kind];
        // Never what the file said somewhere else.
        do {
            known = kind + '-' + std::to_string(++count) + (isUsual(suffix) ? suffix : "");
        } while (m_originals.count(known) > 0);
        return known;
    }

    std::set<std::string> m_originals;
    std::map<std::string, std::string> m_replacements;
    std::map<std::string, std::size_t> m_counts;
};

std::string redactedText(std::string_view text)
{
    Serialize::Json::TextTree read = Serialize::Json::readTree(text);
    if (read.damage) {
        Serialize::Json::parse(text); // says what is wrong
        throw Failure("not all of this file can be read");
    }
    Redactor(read.value).redact(read.value, true);
    return read.value.dump(2) + '\n';
}

} // namespace

std::string redacted(std::string_view bytes)
{
    if (!Archive::isBinary(bytes))
        return redactedText(bytes);
    std::string const text = Archive::toJson(*Archive::fromBinary(bytes));
    return Archive::toBinary(*Archive::fromJson(redactedText(text)));
}

} // namespace Effect::Inspect
