/// @file
/// Items of the catalogue, made from the little that is special about them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// What is special about a new item.
struct NewItem
{
    std::string className;
    std::string resource; ///< the file that the effect needs: a table, a shader or a picture; empty for none
    std::string file;     ///< where the item is going to be; "-" for nowhere in particular
    std::vector<std::string> categories;
    std::vector<std::pair<std::string, std::string>> settings; ///< of parameters; see `setParameter`
};

/// The text of the item's file. The resource bears the name of its file, and so does the group where the class wants
/// that. Its path is relative where it is below the item's folder. The tag is that of the class, with the item's name
/// behind it.
///
/// Throws a `Failure` for an unknown class or parameter, for a resource that the class cannot use or lacks, and for one
/// that is missing or broken.
EFFECTS_INSPECT_API std::string newItem(NewItem const & item);

} // namespace Effect::Inspect
