#include "Output.h"

#include <algorithm>
#include <ostream>

#include <EditorSerialization/JsonArchive.h>

#include "Documents.h"

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

std::string asText(std::string const & bytes)
{
    return QString::fromStdString(bytes).toStdString();
}

void printJson(std::ostream & stream, json const & document)
{
    stream << document.dump(indentWidth) << '\n';
}

void printTable(std::ostream & stream, std::vector<std::vector<std::string>> const & rows)
{
    std::vector<std::size_t> widths;
    for (auto const & row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column)
            widths[column] = std::max(widths[column], width(row[column]));
    }
    for (auto const & row : rows) {
        std::string line;
        for (std::size_t column = 0; column < row.size(); ++column) {
            line += row[column];
            // The last column is not padded: lines end where their text does.
            if (column + 1 < row.size())
                line += std::string(widths[column] - width(row[column]) + indentWidth, ' ');
        }
        stream << line << '\n';
    }
}

void printDocument(std::ostream & stream, json const & document, int indent)
{
    stream << margin(indent) << document[s_meta][s_class_name].get<std::string>() << '\n';
    std::vector<std::pair<std::string, json const *>> fields;
    collectFields(document, fields);
    std::size_t longest = 0;
    for (auto const & [key, value] : fields)
        longest = std::max(longest, key.size());
    for (auto const & [key, value] : fields) {
        stream << margin(indent + indentWidth) << key << std::string(longest - key.size() + indentWidth, ' ');
        bool const holdsObjects = value->is_array() && std::any_of(value->begin(), value->end(), isObjectDocument);
        if (isObjectDocument(*value)) {
            stream << '\n';
            printDocument(stream, *value, indent + 2 * indentWidth);
        } else if (holdsObjects) {
            stream << value->size() << (value->size() == 1 ? " item\n" : " items\n");
            for (json const & item : *value) {
                if (isObjectDocument(item))
                    printDocument(stream, item, indent + 2 * indentWidth);
                else
                    stream << margin(indent + 2 * indentWidth) << "(empty)\n";
            }
        } else {
            stream << value->dump() << '\n';
        }
    }
}

} // namespace Host
