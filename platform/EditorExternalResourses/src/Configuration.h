/// @file
/// Turns the JSON of a head comment into the configuration text.
#pragma once

#include <functional>
#include <string>

#include <nlohmann/json_fwd.hpp>

namespace External::ShaderISF {

/// Resolves the path of an import.
using ResolvePath = std::function<std::string(std::string const & path)>;

/// The configuration text of `head`: checked, every default filled in, in the one form of the README. The paths of
/// imports go through `resolvePath`.
/// @throws std::runtime_error that names the value at fault by its path within the head
std::string makeConfiguration(nlohmann::json const & head, ResolvePath const & resolvePath);

} // namespace External::ShaderISF
