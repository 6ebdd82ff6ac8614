/// @file
/// Printing for people and for programs. Nothing but the progress bar knows of terminals and colours besides.
///
/// Standard output that is a terminal gets aligned tables and, unless the environment forbids them, colours; anything
/// else gets plain text, in which the cells of a table stand between tabs.
#pragma once

#include <streambuf>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>

namespace Host {

/// @name Terminals
/// @{

/// Whether the file behind the descriptor is a terminal.
bool isTerminal(int descriptor);

/// Whether it is one on which a line can be written over: not when `TERM` is "dumb" or missing.
bool hasCursor(int descriptor);

/// @}

enum class Look
{
    Plain,
    Heading,
    Dim
};

/// The text as standard output shows it in that look: the same where that has no colours.
std::string painted(Look look, std::string const & text);

/// What `std::cout` writes into while it lives. Unlike the stream's own buffer it knows why it could not write.
class StandardOutput final : private std::streambuf
{
public:
    StandardOutput();
    ~StandardOutput() override;
    StandardOutput(StandardOutput const &) = delete;
    StandardOutput & operator=(StandardOutput const &) = delete;

    /// Writes what has not been written yet. Returns the `errno` of the first failure ever, or 0.
    int flush();

private:
    int_type overflow(int_type unit) override;
    int sync() override;

    std::streambuf * m_previous;
    std::vector<char> m_buffer;
    int m_error = 0;
};

/// Writes what went wrong to standard error, as one line of UTF-8.
void complain(std::string_view reason);

/// Columns that a text takes, as far as one column a character goes.
std::size_t columnsOf(std::string const & text);

/// The text in that look, with blanks behind it up to that many columns.
std::string paintedAndPadded(Look look, std::string const & text, std::size_t columns);

/// @name On standard output
/// @{

/// One JSON document, indented, with a line end.
void printJson(nlohmann::json const & document);

/// Rows of cells. The first row is the heading.
void printTable(std::vector<std::vector<std::string>> const & rows);

/// A text in lines of at most 80 columns, broken at blanks.
/// @param indent  of every line
/// @param label   what the first line begins with, padded to `labelWidth` columns; the other lines are indented as much
void printParagraph(
    std::string const & text, std::size_t indent, std::string const & label = {}, std::size_t labelWidth = 0);

/// @}

} // namespace Host
