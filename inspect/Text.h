/// @file
/// Texts for messages and documents.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// Whether the byte is a control character of ASCII.
EFFECTS_INSPECT_API bool isControl(char byte);

/// The text with a replacement character for every byte that is no UTF-8.
EFFECTS_INSPECT_API std::string asText(std::string_view bytes);

/// A text for use within a line: as JSON where there are control characters in it.
EFFECTS_INSPECT_API std::string quoted(std::string const & text);

/// The words with `between` between them.
EFFECTS_INSPECT_API std::string joined(std::vector<std::string> const & words, std::string const & between);

/// Such as "1 item" and "2 items".
EFFECTS_INSPECT_API std::string counted(std::size_t count, std::string const & noun);

/// A JSON text in UTF-8, whatever bytes are in the value's own texts: they may come from any file. Never throws for
/// what they hold.
/// @param value   any
/// @param indent  of each level; without one the text is a single line
EFFECTS_INSPECT_API std::string toText(nlohmann::json const & value, int indent = -1);

} // namespace Effect::Inspect
