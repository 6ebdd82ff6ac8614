/// @file
/// JSON texts as trees that keep the order of the keys, as far as the texts can be read.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include <nlohmann/json.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize::Json {

/// What a text holds.
struct TextTree
{
    nlohmann::ordered_json value;      ///< up to the last value that is whole, if the text is damaged
    std::optional<std::size_t> damage; ///< offset of the first byte that cannot be read; nothing for a whole text
    std::set<std::string> duplicates;  ///< JSON pointers of the members whose keys occur more than once; the last one
                                       ///< counts
};

/// Reads a text that may be damaged. Never throws for what is in it; numbers that no `double` holds and more than
/// `maxDocumentDepth` levels are damage.
EDITORSERIALIZATION_EXPORT TextTree readTree(std::string_view text);

/// The byte offsets of the values with these JSON pointers; for a member, that of its key. Of several members with one
/// key the last one counts. Pointers to nothing are absent.
EDITORSERIALIZATION_EXPORT std::map<std::string, std::size_t> offsetsOf(
    std::string_view text, std::set<std::string> const & pointers);

/// @{
/// A key or an index as one step of a JSON pointer: `/` and the key, escaped.
EDITORSERIALIZATION_EXPORT std::string pointerStep(std::string_view key);
EDITORSERIALIZATION_EXPORT std::string pointerStep(std::size_t index);
/// @}

} // namespace Serialize::Json
