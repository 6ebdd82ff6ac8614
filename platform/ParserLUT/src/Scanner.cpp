#include "Scanner.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

#include <ParserLUT/ParseError.h>

namespace Quoril::Proc::LUT {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\v' || c == '\f';
}

bool IsLineEnd(char c)
{
    return c == '\n' || c == '\r';
}

bool IsWordEnd(char const * at, char const * end)
{
    return at == end || IsBlank(*at) || IsLineEnd(*at);
}

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// For a message: in quotes, cut short, and without what could upset a terminal.
std::string Quoted(std::string_view word)
{
    constexpr std::size_t longest = 40;
    std::string quoted = "\"";
    for (char const c : word.substr(0, longest))
        quoted += c >= ' ' && c <= '~' ? c : '?';
    return quoted + (word.size() > longest ? "...\"" : "\"");
}

/// std::from_chars, but accepts a leading plus sign, which some writers of tables use.
template <typename Value> std::from_chars_result FromChars(char const * first, char const * last, Value & value)
{
    bool const plus = last - first > 1 && *first == '+' && first[1] != '-';
    return std::from_chars(first + plus, last, value);
}

} // namespace

bool SameWord(std::string_view a, std::string_view b)
{
    return std::equal(
        a.begin(), a.end(), b.begin(), b.end(), [](char c, char d) { return LowerCase(c) == LowerCase(d); });
}

std::string Shown(float number)
{
    std::array<char, 32> text;
    auto const end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

Scanner::Scanner(std::string_view text)
    : m_at(text.data())
    , m_end(text.data() + text.size())
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (NextWord() && PeekWord().substr(0, byteOrderMark.size()) == byteOrderMark)
        m_at += byteOrderMark.size();
}

bool Scanner::NextWord()
{
    while (AtLineEnd()) {
        m_at = std::find_if(m_at, m_end, IsLineEnd); // over a comment
        if (m_at == m_end)
            return false;
        if (*m_at == '\r' && m_end - m_at > 1 && m_at[1] == '\n')
            ++m_at;
        ++m_at;
        ++m_line;
    }
    return true;
}

bool Scanner::AtLineEnd()
{
    while (m_at != m_end && IsBlank(*m_at))
        ++m_at;
    return m_at == m_end || IsLineEnd(*m_at) || *m_at == '#';
}

void Scanner::EndLine()
{
    if (!AtLineEnd())
        Fail("the end of the line");
}

bool Scanner::NextLine()
{
    EndLine();
    return NextWord();
}

void Scanner::EndText(std::string const & what)
{
    if (NextWord())
        Fail("the end of the text after " + what);
}

std::string_view Scanner::PeekWord() const
{
    auto const end = std::find_if(m_at, m_end, [](char c) { return IsBlank(c) || IsLineEnd(c); });
    return {m_at, static_cast<std::size_t>(end - m_at)};
}

std::string_view Scanner::Word()
{
    if (AtLineEnd())
        return {};
    std::string_view const word = PeekWord();
    m_at += word.size();
    return word;
}

bool Scanner::Accept(std::string_view keyword)
{
    if (AtLineEnd())
        return false;
    std::string_view const word = PeekWord();
    if (!SameWord(word, keyword))
        return false;
    m_at += word.size();
    return true;
}

std::string_view Scanner::RestOfLine()
{
    while (m_at != m_end && IsBlank(*m_at))
        ++m_at;
    char const * const first = m_at;
    m_at = std::find_if(m_at, m_end, IsLineEnd);
    char const * last = m_at;
    while (last != first && IsBlank(last[-1]))
        --last;
    return {first, static_cast<std::size_t>(last - first)};
}

float Scanner::Number(char const * expected)
{
    if (AtLineEnd())
        Fail(expected);
    float value = 0;
    auto [last, error] = FromChars(m_at, m_end, value);
    if (error == std::errc::result_out_of_range) {
        double wide = 0;
        error = FromChars(m_at, m_end, wide).ec;
        if (error == std::errc() && std::abs(wide) > 1)
            Fail(expected);
        value = static_cast<float>(wide);
    }
    if (error != std::errc() || !std::isfinite(value) || !IsWordEnd(last, m_end))
        Fail(expected);
    m_at = last;
    return value;
}

int Scanner::Integer(int min, int max, char const * name)
{
    int value = 0;
    bool good = !AtLineEnd();
    if (good) {
        auto const [last, error] = FromChars(m_at, m_end, value);
        good = error == std::errc() && IsWordEnd(last, m_end) && value >= min && value <= max;
        if (good)
            m_at = last;
    }
    if (!good)
        Fail(std::string(name) + " from " + std::to_string(min) + " to " + std::to_string(max));
    return value;
}

Color Scanner::Numbers3()
{
    Color color;
    for (float & channel : color)
        channel = Number("three finite numbers");
    return color;
}

std::vector<Color> Scanner::Colors(std::size_t count)
{
    std::vector<Color> colors;
    colors.reserve(Capacity(count, std::string_view("0 0 0\n").size()));
    while (colors.size() < count) {
        if (!NextWord())
            throw ParseError(m_line, std::to_string(count) + " entries", std::to_string(colors.size()));
        colors.push_back(Numbers3());
        EndLine();
    }
    return colors;
}

std::size_t Scanner::Capacity(std::size_t count, std::size_t length) const
{
    // The last one may have nothing behind it.
    return std::min(count, (static_cast<std::size_t>(m_end - m_at) + 1) / length);
}

void Scanner::Fail(std::string const & expected)
{
    std::string found = "the end of the line";
    if (!AtLineEnd())
        found = Quoted(PeekWord());
    else if (m_at == m_end)
        found = "the end of the text";
    throw ParseError(m_line, expected, found);
}

} // namespace Quoril::Proc::LUT
