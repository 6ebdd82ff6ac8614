#pragma once

#include <nlohmann/json.hpp>

namespace Effect::Archive {

/// Carries the changes of a document over to a tree that holds more than the document. What has not changed stays as it
/// is in the tree, members that the document does not know included.
/// @param tree    the tree from which `before` was read
/// @param before  the document as it was read
/// @param after   the document as it is now
void merge(nlohmann::ordered_json & tree, nlohmann::json const & before, nlohmann::json const & after);

} // namespace Effect::Archive
