#include "Output.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <iostream>

#include <unistd.h>

#include <EditorSerialization/JsonArchive.h>

#include "Documents.h"
#include "Progress.h"

#include <QString>

namespace Host {

using nlohmann::json;
using Serialize::Json::MetaDetails::s_class_name;
using Serialize::Json::MetaDetails::s_meta;

namespace {

constexpr int indentWidth = 2;

/// Characters, not bytes, as far as one column a character goes.
std::size_t width(std::string const & text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

bool isControl(char byte)
{
    return (byte >= 0 && byte < ' ') || byte == 0x7F;
}

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

std::string margin(int indent)
{
    return std::string(static_cast<std::size_t>(indent), ' ');
}

bool isObjectDocument(json const & value)
{
    return value.is_object() && value.contains(s_meta);
}

/// The fields of an object, those of its bases first.
void collectFields(json const & document, std::vector<std::pair<std::string, json const *>> & fields)
{
    std::string const base = baseOf(document);
    if (!base.empty())
        collectFields(document[base], fields);
    for (auto const & [key, value] : document.items())
        if (key != s_meta && key != base)
            fields.emplace_back(key, &value);
}

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

std::string asText(std::string_view bytes)
{
    return QString::fromUtf8(bytes.data(), static_cast<int>(bytes.size())).toStdString();
}

std::string quoted(std::string const & text)
{
    return std::any_of(text.begin(), text.end(), isControl) ? toText(text) : text;
}

std::string joined(std::vector<std::string> const & words, std::string const & between)
{
    std::string text;
    for (std::string const & word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

std::string toText(json const & value, int indent)
{
    return value.dump(indent, ' ', false, json::error_handler_t::replace);
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
            widths[column] = std::max(widths[column], width(row[column]));
    }
    for (auto const & row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            bool const isLast = column + 1 == row.size();
            line += painted(&row == &rows.front() ? Look::Heading : Look::Plain, row[column]);
            // The last column is not padded: lines end where their text does.
            if (!isLast)
                line += isAligned ? std::string(widths[column] - width(row[column]) + indentWidth, ' ') : "\t";
        }
        std::cout << line << '\n';
    }
}

void printDocument(json const & document, int indent)
{
    std::cout << margin(indent) << painted(Look::Heading, document[s_meta][s_class_name]) << '\n';
    std::vector<std::pair<std::string, json const *>> fields;
    collectFields(document, fields);
    std::size_t longest = 0;
    for (auto const & [key, value] : fields)
        longest = std::max(longest, key.size());
    for (auto const & [key, value] : fields) {
        std::cout << margin(indent + indentWidth) << painted(Look::Dim, key)
                  << std::string(longest - key.size() + indentWidth, ' ');
        bool const holdsObjects = value->is_array() && std::any_of(value->begin(), value->end(), isObjectDocument);
        if (isObjectDocument(*value)) {
            std::cout << '\n';
            printDocument(*value, indent + 2 * indentWidth);
        } else if (holdsObjects) {
            std::cout << value->size() << (value->size() == 1 ? " item\n" : " items\n");
            for (json const & item : *value) {
                if (isObjectDocument(item))
                    printDocument(item, indent + 2 * indentWidth);
                else
                    std::cout << margin(indent + 2 * indentWidth) << "(empty)\n";
            }
        } else {
            std::cout << toText(*value) << '\n';
        }
    }
}

} // namespace Host
