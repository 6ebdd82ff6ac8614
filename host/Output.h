/// @file
/// Printing for people and for programs.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace Host {

/// The same with a replacement character for every byte that is no UTF-8: a document has no place for it.
std::string asText(std::string const & bytes);

/// One JSON document, indented, with a line end.
void printJson(std::ostream & stream, nlohmann::json const & document);

/// Rows of cells, in columns as wide as their widest cell. The first row is the heading.
void printTable(std::ostream & stream, std::vector<std::vector<std::string>> const & rows);

/// An archive document as an indented list of keys and values, base classes run together with the class.
void printDocument(std::ostream & stream, nlohmann::json const & document, int indent = 0);

} // namespace Host
