/// @file
/// How two files of effects differ.
#pragma once

#include <string>
#include <vector>

#include <inspect/EffectFile.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// Whether two documents are the same, numbers being compared as the library compares doubles.
EFFECTS_INSPECT_API bool isSame(nlohmann::json const & left, nlohmann::json const & right);

/// The operations of RFC 6902 that make one document of another; none for documents that are the same by `isSame`.
/// Elements at the beginning and the end of a list that are the same stay, as do objects of one class, of which only
/// what differs is replaced.
/// @param pointer  of both documents, with which the operations' pointers begin
EFFECTS_INSPECT_API nlohmann::json patchFrom(
    nlohmann::json const & from, nlohmann::json const & to, std::string const & pointer = {});

/// The patch from one file to another. Of an item and an archive, the effects alone are compared.
EFFECTS_INSPECT_API nlohmann::json patchFrom(EffectFile const & from, EffectFile const & to);

/// One thing in which two files differ.
struct Difference
{
    std::string key;   ///< of the parameter, or the JSON pointer in the effect's document of what is inside of one
    std::string label; ///< of the parameter; empty where there is none
    std::string left;  ///< value as a person reads it; empty where there is none
    std::string right; ///< value as a person reads it; empty where there is none
};

/// The differences in the order of the patch, a parameter once.
EFFECTS_INSPECT_API std::vector<Difference> differencesOf(EffectFile const & left, EffectFile const & right);

} // namespace Effect::Inspect
