/// @file
/// What commands share that read the catalogue.
#pragma once

#include <inspect/Catalogue.h>

#include <CLI/CLI.hpp>

namespace Host {

/// Adds `--stock` and `--user`.
void addFolders(CLI::App & command, Effect::Inspect::CatalogueFolders & folders);

/// The catalogue, with a progress bar while it is read.
Effect::Inspect::Catalogue readCatalogue(Effect::Inspect::CatalogueFolders const & folders);

} // namespace Host
