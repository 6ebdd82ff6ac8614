#include "Output.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include <unistd.h>

#include <inspect/Text.h>

#include "Progress.h"

namespace Host {

using Effect::Inspect::asText;
using Effect::Inspect::isControl;
using Effect::Inspect::toText;
using nlohmann::json;

namespace {

constexpr int indentWidth = 2;
constexpr std::size_t pageWidth = 80; // columns

std::string variable(char const * name)
{
    char const * const value = std::getenv(name);
    return value ? value : "";
}

/// Any value of NO_COLOR but an empty one forbids colours.
bool hasColours(int descriptor)
{
    return variable("NO_COLOR").empty() && hasCursor(descriptor);
}

constexpr char const * bold = "\033[1m";
constexpr char const * dim = "\033[2m";
constexpr char const * red = "\033[31m";
constexpr char const * plain = "\033[0m";

} // namespace

bool isTerminal(int descriptor)
{
    return isatty(descriptor) == 1;
}

bool hasCursor(int descriptor)
{
    std::string const terminal = variable("TERM");
    return isTerminal(descriptor) && !terminal.empty() && terminal != "dumb";
}

std::string painted(Look look, std::string const & text)
{
    static bool const isColoured = hasColours(STDOUT_FILENO);
    if (look == Look::Plain || !isColoured || text.empty())
        return text;
    return (look == Look::Heading ? bold : dim) + text + plain;
}

StandardOutput::StandardOutput()
    : m_previous(std::cout.rdbuf(this))
    , m_buffer(1 << 16)
{
    setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
}

StandardOutput::~StandardOutput()
{
    std::cout.rdbuf(m_previous);
}

int StandardOutput::flush()
{
    sync();
    return m_error;
}

StandardOutput::int_type StandardOutput::overflow(int_type unit)
{
    if (sync() != 0)
        return traits_type::eof();
    return traits_type::eq_int_type(unit, traits_type::eof()) ? traits_type::not_eof(unit)
                                                              : sputc(traits_type::to_char_type(unit));
}

int StandardOutput::sync()
{
    for (char const * rest = pbase(); rest < pptr() && m_error == 0;) {
        ssize_t const count = ::write(STDOUT_FILENO, rest, static_cast<std::size_t>(pptr() - rest));
        if (count >= 0)
            rest += count;
        else if (errno != EINTR)
            m_error = errno;
    }
    setp(m_buffer.data(), m_buffer.data() + m_buffer.size());
    return m_error == 0 ? 0 : -1;
}

void complain(std::string_view reason)
{
    static std::string const name = hasColours(STDERR_FILENO) ? std::string(red) + "effectctl:" + plain : "effectctl:";
    std::string line = asText(reason);
    // A file's name and what it holds may be anything, and this is one line on a terminal.
    std::replace_if(line.begin(), line.end(), isControl, '?');
    Progress::hide();
    // In one piece, as several threads may complain.
    std::cerr << name + ' ' + line + '\n';
}

std::size_t columnsOf(std::string const & text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

std::string paintedAndPadded(Look look, std::string const & text, std::size_t columns)
{
    return painted(look, text) + std::string(columns - std::min(columns, columnsOf(text)), ' ');
}

void printJson(json const & document)
{
    std::cout << toText(document, indentWidth) << '\n';
}

void printTable(std::vector<std::vector<std::string>> const & rows)
{
    bool const isAligned = isTerminal(STDOUT_FILENO);
    std::vector<std::size_t> widths;
    for (auto const & row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], columnsOf(row[column]));
    }
    for (auto const & row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            bool const isLast = column + 1 == row.size();
            line += painted(&row == &rows.front() ? Look::Heading : Look::Plain, row[column]);
            // The last column is not padded: lines end where their text does.
            if (!isLast)
                line += isAligned ? std::string(widths[column] - columnsOf(row[column]) + indentWidth, ' ') : "\t";
        }
        std::cout << line << '\n';
    }
}

void printParagraph(std::string const & text, std::size_t indent, std::string const & label, std::size_t labelWidth)
{
    std::string const margin(indent + labelWidth, ' ');
    std::string line = std::string(indent, ' ') + paintedAndPadded(Look::Dim, label, labelWidth);
    std::size_t columns = margin.size();
    bool isEmpty = true;
    std::istringstream words(text);
    for (std::string word; words >> word; isEmpty = false) {
        if (!isEmpty && columns + 1 + columnsOf(word) > pageWidth) {
            std::cout << line << '\n';
            line = margin;
            columns = margin.size();
            isEmpty = true;
        }
        line += (isEmpty ? "" : " ") + word;
        columns += columnsOf(word) + (isEmpty ? 0 : 1);
    }
    std::cout << line << '\n';
}

} // namespace Host
