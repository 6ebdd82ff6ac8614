/// @file
/// Zip archives of plain files.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Effect::Inspect {

/// The bytes of a zip archive of these files, with their names in UTF-8. They depend on nothing else.
std::string zipped(std::vector<std::pair<std::string, std::string>> const & files);

/// Calls `take` with name and bytes of each file in a zip archive, in order. Throws a `Failure` without the archive's
/// name for what is no such archive, for an entry that is no plain file or not named in UTF-8, and for one that is
/// larger than `largest` bytes.
void forEachZipped(std::string const & path, std::size_t largest,
    std::function<void(std::string const & name, std::string && bytes)> const & take);

} // namespace Effect::Inspect
