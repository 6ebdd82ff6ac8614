/// @file
/// What a misspelt word was most likely meant to be.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// The candidate that is nearest to the word: the one that the fewest changed, missing, superfluous or swapped letters
/// make of it, upper and lower case being the same; the first of several. Empty when none is alike, more than half of
/// the letters being wrong.
EDITORSERIALIZATION_EXPORT std::string nearest(std::string_view word, std::vector<std::string> const & candidates);

/// "; did you mean "X"?", for the end of a message; empty when no candidate is alike.
EDITORSERIALIZATION_EXPORT std::string didYouMean(std::string_view word, std::vector<std::string> const & candidates);

} // namespace Serialize
