/// @file
/// Where the files below some folders go in another folder.
#pragma once

#include <string>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// One of the files that the arguments of a command name, and its place below another folder.
struct Target
{
    std::string file;
    std::string relative; ///< below the other folder; empty where there is an error
    std::string error;    ///< why the argument names no file, or the file has no place
};

/// The files that arguments name, as `expand` finds them. The files of a folder keep their places in it, those that a
/// pattern finds their places below its fixed part, and any other file is directly below the other folder.
/// @param suffixes  of the files that are taken from folders
EFFECTS_INSPECT_API std::vector<Target> targets(
    std::vector<std::string> const & arguments, std::vector<std::string> const & suffixes);

/// Gives an error to every target whose place another one before it has taken.
EFFECTS_INSPECT_API void refuseCollisions(std::vector<Target> & targets);

} // namespace Effect::Inspect
