/// @file
/// Suggestions for misspelt words.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// The candidate with the least edit distance from the word, ignoring case; the first of several. Empty if more than
/// half of the letters would be wrong.
EDITORSERIALIZATION_EXPORT std::string nearest(std::string_view word, std::vector<std::string> const & candidates);

/// "; did you mean "X"?", for the end of a message; empty when no candidate is alike.
EDITORSERIALIZATION_EXPORT std::string didYouMean(std::string_view word, std::vector<std::string> const & candidates);

} // namespace Serialize
