// JSON texts without a tree, held to the archives: what is read without one is what the archive reads, and what is
// written without one is what the archive writes, byte for byte.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/JsonText.h>
#include <EditorSerialization/Layout.h>
#include <EditorSerialization/Registry.h>

#include <nlohmann/json.hpp>

namespace {

std::string treeText(Effect::Object const & effect)
{
    nlohmann::json document;
    Serialize::Json::oarchive archive(document);
    Effect::Object const * const pointer = &effect;
    archive << pointer;
    return document.dump();
}

std::unique_ptr<Effect::Object> treeRead(std::string_view text)
{
    nlohmann::json const document = Serialize::Json::parse(text);
    Serialize::Json::iarchive archive(document);
    std::unique_ptr<Effect::Object> effect;
    archive >> effect;
    return effect;
}

void check(std::string_view text)
{
    auto const object = Serialize::Json::readObject(text);
    auto const * const effect = dynamic_cast<Effect::Object const *>(object.get());
    if (!effect)
        return;
    // The archive throws what no handler here takes, where it refuses what has been read.
    auto const expected = treeRead(text);
    if (!expected || Effect::Archive::toBinary(*effect) != Effect::Archive::toBinary(*expected))
        throw std::logic_error("the text reads as another effect than its tree");
    if (Serialize::Json::writeObject(*effect) != treeText(*effect))
        throw std::logic_error("the effect is written with another text than its tree's");
}

/// Edits the tokens of a text, so that most results are still JSON, and many still effects: bytes that are changed by
/// chance are neither, once in a hundred times.
class Editor
{
public:
    Editor(std::string_view text, std::uint64_t seed)
        : m_random(seed)
    {
        while (!text.empty()) {
            std::size_t length = 1;
            if (text[0] == '"')
                while (text[length++] != '"')
                    length += text[length - 1] == '\\' ? 1 : 0;
            else if (!isPunctuation(text[0]))
                length = text.find_first_of(",]}");
            m_tokens.emplace_back(text.substr(0, length));
            text.remove_prefix(length);
        }
    }

    std::string edited()
    {
        for (auto count = 1 + below(4); count != 0; --count)
            edit();
        std::string text;
        for (std::string const & token : m_tokens)
            text += token;
        return text;
    }

private:
    using Tokens = std::vector<std::string>;
    struct Member
    {
        Tokens::iterator begin; // its key
        Tokens::iterator end;   // behind its value
    };

    static bool isPunctuation(char byte) { return std::string_view("{}[],:").find(byte) != std::string_view::npos; }
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }
    template <std::size_t size> char const * any(char const * const (&texts)[size]) { return texts[below(size)]; }

    /// A member of an object, by chance.
    Member anyMember()
    {
        auto key = m_tokens.begin() + static_cast<std::ptrdiff_t>(below(m_tokens.size()));
        while (key != m_tokens.begin() && !(key + 1 != m_tokens.end() && key[1] == ":"))
            --key;
        if (key == m_tokens.begin())
            return {m_tokens.end(), m_tokens.end()};
        int depth = 0;
        auto end = key + 2;
        do {
            depth += *end == "{" || *end == "[" ? 1 : *end == "}" || *end == "]" ? -1 : 0;
            ++end;
        } while (depth > 0 && end != m_tokens.end());
        return {key, end};
    }

    void edit()
    {
        static constexpr char const * numbers[] = {"0", "-0", "-0.0", "1", "-1", "7", "0.5", "1.0", "1e2", "1E-2",
            "-1e+3", "2147483647", "2147483648", "-2147483648", "-2147483649", "4294967295", "4294967296",
            "9007199254740993", "999999999999999999", "1000000000000000000", "9223372036854775807",
            "9223372036854775808", "18446744073709551615", "18446744073709551616", "12345678901234567890123",
            "0.1234567890123456789", "123456789.12345678", "5e-324", "1e-400", "1e308", "1e309",
            "1.7976931348623159e308", "\"NaN\"", "\"Infinity\"", "\"-Infinity\"", "\"nan\"", "01", "1.", "-", "true",
            "null", "\"1\""};
        static constexpr char const * texts[] = {"\"\"", "\"a\"", "null", "\"\\u0000\"", "\"\\u00e9\"", "\"\xC3\xA9\"",
            "\"\xEF\xBB\xBF\"", "\"\\ufeff\"", "\"\\ud83d\\ude00\"", "\"\\ud83d\"", "\"\\\"\\\\\\/\\b\\f\\n\\r\\t\"",
            "\"\x7F\"", "\"\xC3\"", "\"\xED\xA0\x80\"", "{\"$utf16\":[55357]}", "{\"$bytes\":\"/w==\"}", "7",
            "\"$meta\"", "\"Effect::Blur\"", "\"Effect::Object\"", "\"Effect::Frame\"", "\"intensity\"",
            "\"0123456789abcdef0123\""};
        static constexpr char const * spaces[] = {" ", "\n", "\t", "\r", " \n ", "\v", "\xC2\xA0"};
        static constexpr char const * values[] = {"null", "{}", "[]", "[[],{}]", "{\"a\":1,\"a\":2}", "[1,-0,2.5e3]",
            "{\"$meta\":{\"ref\":1}}", "{\"$meta\":{\"id\":1}}", "\"\\ud800\"", "\"x\"", "1e400", "true", "false",
            "{\"class\":\"Effect::Blur\"}", "[{\"$meta\":{\"class\":\"Effect::Blur\"}}]", "{\"start\":3}"};
        auto const token = m_tokens.begin() + static_cast<std::ptrdiff_t>(below(m_tokens.size()));
        Member const member = anyMember();
        bool const hasMember = member.begin != m_tokens.end();
        switch (below(10)) {
        case 0:
        case 1:
            // A scalar of a kind that fits, mostly.
            if (!isPunctuation((*token)[0]))
                *token = (*token)[0] == '"' && below(8) != 0 ? any(texts) : any(numbers);
            break;
        case 2:
            m_tokens.insert(token, any(spaces));
            break;
        case 3:
        case 4:
            if (hasMember) {
                Tokens copy(member.begin, member.end);
                copy.insert(copy.begin(), ",");
                m_tokens.insert(below(2) == 0 ? member.end : anyMember().end, copy.begin(), copy.end());
            }
            break;
        case 5:
            if (hasMember && member.end != m_tokens.end())
                m_tokens.erase(member.begin, member.end + (*member.end == "," ? 1 : 0));
            break;
        case 6:
            if (hasMember) {
                Tokens const moved(member.begin, member.end);
                auto const after = m_tokens.erase(member.begin - (member.begin[-1] == "," ? 1 : 0), member.end);
                Tokens inserted{","};
                inserted.insert(inserted.end(), moved.begin(), moved.end());
                Member const other = anyMember();
                m_tokens.insert(other.begin == m_tokens.end() ? after : other.end, inserted.begin(), inserted.end());
            }
            break;
        case 7:
            if (hasMember)
                m_tokens.insert(member.end, {",", "\"unknown\"", ":", any(values)});
            break;
        case 8:
            if (hasMember && member.begin->size() > 2) {
                // The key with an escape in it.
                char escape[8];
                std::snprintf(escape, sizeof escape, "\\u%04x", static_cast<unsigned char>((*member.begin)[1]));
                member.begin->replace(1, 1, escape);
            }
            break;
        default:
            if (hasMember) {
                auto const value = m_tokens.erase(member.begin + 2, member.end);
                m_tokens.insert(value, any(values));
            }
        }
    }

    std::mt19937_64 m_random;
    Tokens m_tokens;
};

/// A text of each class, with and without elements in its lists.
std::vector<std::string> const & patterns()
{
    static std::vector<std::string> const patterns = [] {
        std::vector<std::string> texts;
        for (std::string const & name : Serialize::Registry::names()) {
            auto const object = Serialize::Registry::create(name);
            for (auto const * layout = object->GetLayout(); layout; layout = layout->base)
                for (std::size_t index = 0; index < layout->fieldCount; ++index) {
                    Serialize::FieldLayout const & field = layout->fields[index];
                    void * const address = field.address(*object);
                    if (field.form == Serialize::Form::Records || field.form == Serialize::Form::OptionalRecord)
                        field.container->append(address);
                    else if (field.form == Serialize::Form::Objects)
                        field.container->adopt(address, Serialize::Registry::create("Effect::Blur"));
                }
            for (std::string text : {Serialize::Json::writeObject(*Serialize::Registry::create(name)),
                     Serialize::Json::writeObject(*object)})
                if (!text.empty())
                    texts.push_back(std::move(text));
        }
        return texts;
    }();
    return patterns;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    std::string_view const text(reinterpret_cast<char const *>(data), size);
    check(text);
    std::uint64_t seed = size;
    for (std::size_t index = 0; index < size; ++index)
        seed = seed * 0x100000001B3 + data[index];
    check(Editor(patterns()[seed % patterns().size()], seed).edited());
    return 0;
}
