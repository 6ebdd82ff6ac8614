/// @file
/// Options whose values are pairs "NAME=VALUE", any number of them.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace Host {

CLI::Option * addPairs(
    CLI::App & command, std::string const & name, std::vector<std::string> & pairs, std::string const & help);

/// The texts before and behind the first "=".
std::pair<std::string, std::string> halves(std::string const & pair);

} // namespace Host
