// The tokens of a JSON text. Every function returns false for what it does not take; nothing can be read after that.
#pragma once

#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include <EditorSerialization/JsonArchive.h>

#include "PlainText.h"

namespace Serialize::Json {

class Scanner
{
public:
    explicit Scanner(std::string_view text)
        : m_begin(text.data())
        , m_next(text.data())
        , m_end(text.data() + text.size())
    {}

    bool atEnd() { return !token(); }

    /// The first byte of the next token; there is one.
    bool token()
    {
        if (m_next != m_end && static_cast<unsigned char>(*m_next) > ' ')
            return true;
        while (m_next != m_end && isSpace(*m_next))
            m_next = endOfBlanks(m_next + 1, m_end); // an indentation follows a line end
        return m_next != m_end;
    }
    char peek() const { return *m_next; }
    /// Of what comes next, in bytes.
    std::size_t offset() const { return static_cast<std::size_t>(m_next - m_begin); }

    bool take(char byte)
    {
        if (!token() || *m_next != byte)
            return false;
        ++m_next;
        return true;
    }
    bool startsWith(std::string_view bytes) const
    {
        return static_cast<std::size_t>(m_end - m_next) >= bytes.size() && areSame(m_next, bytes.data(), bytes.size());
    }
    /// Just these bytes, with no white space before them.
    bool takeExactly(char const * bytes, std::size_t count)
    {
        if (!startsWith({bytes, count}))
            return false;
        m_next += count;
        return true;
    }
    template <std::size_t size> bool takeExactly(char const (&bytes)[size]) { return takeExactly(bytes, size - 1); }

    bool isDeepest() const { return m_depth == maxDocumentDepth; }
    bool open(char bracket)
    {
        if (isDeepest() || !take(bracket))
            return false;
        ++m_depth;
        return true;
    }
    bool close(char bracket)
    {
        if (!take(bracket))
            return false;
        --m_depth;
        return true;
    }

    /// @param value    in the text or, if it has escapes or is not ASCII, in a buffer until the next string is read
    /// @param isAscii  whether all of it is
    bool string(std::string_view & value, bool & isAscii) { return take('"') && stringRest(value, isAscii); }
    /// The same without its opening quotation mark, which has been taken.
    bool stringRest(std::string_view & value, bool & isAscii)
    {
        char const * const begin = m_next;
        m_next = endOfPlain(begin, m_end);
        if (m_next == m_end)
            return false;
        if (*m_next != '"')
            return decode(begin, value, isAscii);
        value = {begin, static_cast<std::size_t>(m_next - begin)};
        isAscii = true;
        ++m_next;
        return true;
    }
    bool string(std::string_view & value)
    {
        bool isAscii = false;
        return string(value, isAscii);
    }

    bool boolean(bool & value)
    {
        if (!token())
            return false;
        value = *m_next == 't';
        return value ? takeExactly("true") : takeExactly("false");
    }
    bool null() { return token() && takeExactly("null"); }
    bool integer(std::int64_t & value);
    bool number(double & value);
    /// The same, as it is written.
    bool numberToken(std::string_view & token);
    /// A number or a text for one that is not finite.
    bool real(double & value)
    {
        if (!token())
            return false;
        return *m_next == '"' ? notFinite(value) : number(value);
    }
    /// Any value, checked as if it were wanted.
    bool skip();

private:
    static bool isSpace(char byte) { return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t'; }
    bool decode(char const * begin, std::string_view & value, bool & isAscii);
    bool escape(unsigned & code);
    bool codeUnit(unsigned & unit);
    bool notFinite(double & value);
    bool key() { return string(m_skipped) && take(':'); }

    char const * const m_begin;
    char const * m_next;
    char const * const m_end;
    int m_depth = 0; // arrays and objects that are open
    std::string m_decoded;
    std::string_view m_skipped;
};

} // namespace Serialize::Json
