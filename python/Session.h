/// @file
/// The library at work: conversions and the catalogue.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <inspect/RenderHost.h>

#include <nlohmann/json.hpp>

#include "Source.h"

namespace EffectsPython {

/// An item of the catalogue.
struct CatalogueItem
{
    std::shared_ptr<Source> effect; ///< with absolute paths
    std::string collection;
    std::string file; ///< absolute, in the bytes of the file system
    std::vector<std::string> categories;
    bool isUsers = false;
};

struct CatalogueContent
{
    std::vector<CatalogueItem> items;
    std::vector<std::string> problems; ///< what was logged
};

/// What is wrong with a file.
struct FileFindings
{
    std::string file; ///< in the bytes of the file system
    std::vector<Effect::Archive::Finding> findings;
};

/// @name Calls without the interpreter's lock
/// Only one of them is at work at a time; others wait.
/// @{

/// The record of an effect, see `Effect::Inspect::recordOf`. The first call brings the library up.
nlohmann::json convert(Effect::Object const & effect, Effect::Inspect::RenderParams const & params);

/// Checks a file, or those in a folder or that match a pattern, see `Effect::Inspect::expand`.
std::vector<FileFindings> check(std::string const & path);

/// Reads the catalogue of these folders, which conversions use from then on; empty for the ones that the environment or
/// the installation names.
/// @param progress  called with the number of items that are read and that are found; what it throws ends the reading
CatalogueContent readCatalogue(std::string const & stock, std::string const & user,
    std::function<void(std::size_t read, std::size_t found)> const & progress);

/// @}

} // namespace EffectsPython
