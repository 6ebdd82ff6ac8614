/// @file
/// The words and numbers of a text, in place.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include <ParserLUT/LUTTable.h>

namespace Quoril::Proc::LUT {

/// A cursor over a text of lines and words, which must outlive it. Nothing is copied, and numbers are read
/// independently of the locale.
///
/// Lines end with LF, CR LF or CR. Blanks separate words, and a '#' where a word could start begins a comment that
/// lasts to the end of the line. Only @ref NextWord and @ref NextLine leave a line. Whatever is not as expected throws
/// ParseError.
class Scanner
{
public:
    /// Starts at the first word of the text. A UTF-8 byte order mark in front of it is skipped.
    explicit Scanner(std::string_view text);

    /// Goes to the next word, over blanks, comments and line ends.
    /// @return false at the end of the text
    bool NextWord();

    /// Goes over blanks.
    /// @return whether the line has no further word
    bool AtLineEnd();

    /// The character at the cursor, or a zero at the end of the text.
    char Peek() const { return m_at == m_end ? '\0' : *m_at; }

    /// Refuses a further word on the line.
    void EndLine();

    /// @ref EndLine and then @ref NextWord.
    bool NextLine();

    /// Refuses a further word in the text.
    /// @param what what the text has had, such as "8 entries"
    void EndText(std::string const & what);

    /// Takes the next word of the line, or nothing at its end.
    std::string_view Word();

    /// Takes the next word of the line if it is @p keyword, in either case.
    bool Accept(std::string_view keyword);

    /// Takes what is left of the line, without blanks around it. A '#' in it has no meaning.
    std::string_view RestOfLine();

    /// Takes a finite number. One too small for a float is zero.
    float Number(char const * expected = "a finite number");

    /// Takes a decimal integer between @p min and @p max.
    int Integer(int min, int max, char const * name);

    /// Takes three numbers.
    Color Numbers3();

    /// Takes the next @p count lines, each three numbers and nothing else. Storage is bounded by the text that is left.
    std::vector<Color> Colors(std::size_t count);

    /// The cursor's line; the first is 1.
    std::size_t Line() const { return m_line; }

    /// How many elements to make room for when @p count are announced and each takes @p length characters at least,
    /// counting the blank or line end behind it: no more than the text left can hold.
    std::size_t Capacity(std::size_t count, std::size_t length) const;

    /// Throws that something else was expected in place of the word at the cursor.
    [[noreturn]] void Fail(std::string const & expected);

private:
    std::string_view PeekWord() const;

    char const * m_at;
    char const * m_end;
    std::size_t m_line = 1;
};

/// Whether two words are the same but for the case of ASCII letters.
bool SameWord(std::string_view a, std::string_view b);

/// A number for a message, in the shortest form that is exact.
std::string Shown(float number);

} // namespace Quoril::Proc::LUT
