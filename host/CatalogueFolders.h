/// @file
/// The folders of a catalogue, as the commands that bring one up take them.
#pragma once

#include <string>

#include <EditorUtil/ItemStorage.h>

#include <CLI/CLI.hpp>

namespace Host {

/// Given on the command line; empty for those of the environment or of the installation.
struct CatalogueFolders
{
    std::string stock;
    std::string user;
};

/// Adds `--stock` and `--user` to a command.
void addFolders(CLI::App & command, CatalogueFolders & folders);

/// Makes them the library's. Throws a `Failure` for what is no folder that items can be read from.
void useFolders(CatalogueFolders const & folders);

/// What is wrong with the stock folder as a whole; empty when nothing is. The storage takes a collection's folder that
/// is missing for one without items, so a wrong stock folder would pass for an empty catalogue.
std::string stockProblem();

/// Waits until all items have been delivered.
void waitForItems(EditorCollection::ItemStorage & storage);

} // namespace Host
