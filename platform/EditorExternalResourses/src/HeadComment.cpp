#include "HeadComment.h"

#include <algorithm>
#include <stdexcept>

#include <EditorExternalResourses/ShaderISF.h>

namespace External::ShaderISF {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f';
}

bool startsAt(std::string_view text, std::size_t offset, std::string_view token)
{
    return text.compare(offset, token.size(), token) == 0;
}

/// The offset behind the first `token` at or behind `offset`, or npos.
std::size_t behind(std::string_view text, std::string_view token, std::size_t offset)
{
    std::size_t const found = text.find(token, offset);
    return found == npos ? npos : found + token.size();
}

/// Extracts a JSON object from a comment and cleans it.
class JsonScanner
{
public:
    JsonScanner(std::string_view text, std::size_t begin)
        : m_text(text)
        , m_at(begin)
    {}

    /// Stops behind the brace that closes the object or, if the object is broken, at the end of the comment or text.
    void scan()
    {
        while (m_at < m_text.size() && !startsAt(m_text, m_at, "*/")) {
            char const c = m_text[m_at];
            if (c == '"')
                copyString();
            else if (startsAt(m_text, m_at, "//"))
                blankLineComment();
            else if (startsAt(m_text, m_at, "/*"))
                blankUntil(behind(m_text, "*/", m_at + 2));
            else if (copyMark(c))
                return;
        }
    }

    std::size_t end() const { return m_at; }
    std::string takeJson() { return std::move(m_json); }

private:
    /// Copies one character outside of strings. Returns whether it closed the object.
    bool copyMark(char c)
    {
        bool const closes = c == '}' || c == ']';
        if (closes && m_comma != npos)
            m_json[m_comma] = ' ';
        if (c == ',')
            m_comma = m_json.size();
        else if (!isSpace(c))
            m_comma = npos;
        if ((c == '{' || c == '[') && ++m_depth > maximumDepth)
            throw std::runtime_error(describePlace(m_text, m_at) + ": the head is nested more than " +
                                     std::to_string(maximumDepth) + " levels deep");
        m_json += c;
        ++m_at;
        return closes && --m_depth == 0;
    }

    /// An unterminated string ends with its line, so that it cannot swallow the comment or the shader.
    void copyString()
    {
        m_comma = npos;
        bool escaped = false;
        std::size_t const begin = m_at;
        for (; m_at < m_text.size() && m_text[m_at] != '\n'; ++m_at) {
            char const c = m_text[m_at];
            m_json += static_cast<unsigned char>(c) < 0x20 ? ' ' : c;
            if (c == '"' && !escaped && m_at != begin) {
                ++m_at;
                return;
            }
            escaped = c == '\\' && !escaped;
        }
    }

    /// The end of the head comment ends a line comment as well.
    void blankLineComment()
    {
        std::string_view const line = m_text.substr(m_at, m_text.find('\n', m_at) - m_at);
        blankUntil(m_at + std::min(line.find("*/"), line.size()));
    }

    void blankUntil(std::size_t end)
    {
        for (end = std::min(end, m_text.size()); m_at < end; ++m_at)
            m_json += m_text[m_at] == '\n' ? '\n' : ' ';
    }

    std::string_view m_text;
    std::size_t m_at;
    std::string m_json;
    int m_depth = 0;
    std::size_t m_comma = npos; ///< in m_json: the comma that only space and comments have followed so far
};

/// The offset of the brace that the comment at `begin` starts with, or npos for a comment of another kind. The stars of
/// a comment such as "/**" are no part of its text.
std::size_t findOpeningBrace(std::string_view text, std::size_t begin)
{
    for (std::size_t at = begin + 2; at < text.size() && !startsAt(text, at, "*/"); ++at) {
        if (text[at] == '{')
            return at;
        if (!isSpace(text[at]) && text[at] != '*')
            break;
    }
    return npos;
}

HeadComment readHeadComment(std::string_view text, std::size_t begin, std::size_t brace)
{
    JsonScanner scanner(text, brace);
    scanner.scan();
    std::size_t const end = behind(text, "*/", scanner.end());
    if (end == npos)
        throw std::runtime_error(describePlace(text, begin) + ": the comment with the head is not closed");
    if (scanner.end() - brace > maximumHeadSize)
        throw std::runtime_error(describePlace(text, brace) + ": the JSON object of the head is larger than " +
                                 std::to_string(maximumHeadSize >> 10) + " KiB");
    return {begin, end, brace, scanner.takeJson()};
}

} // namespace

HeadComment findHeadComment(std::string_view shader)
{
    for (std::size_t at = shader.find('/'); at != npos; at = shader.find('/', at)) {
        if (startsAt(shader, at, "//")) {
            at = shader.find('\n', at);
        } else if (startsAt(shader, at, "/*")) {
            if (std::size_t const brace = findOpeningBrace(shader, at); brace != npos)
                return readHeadComment(shader, at, brace);
            at = behind(shader, "*/", at + 2);
        } else {
            ++at;
        }
    }
    throw std::runtime_error("there is no comment with a JSON object at the head of the shader");
}

std::string describePlace(std::string_view text, std::size_t offset)
{
    std::string_view const before = text.substr(0, offset);
    std::size_t const lineBegin = before.rfind('\n') + 1; // 0 in the first line, as npos wraps around
    return "line " + std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ", column " +
           std::to_string(1 + before.size() - lineBegin);
}

} // namespace External::ShaderISF
