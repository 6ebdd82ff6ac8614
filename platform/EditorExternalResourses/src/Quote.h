/// @file
/// Foreign text within messages.
#pragma once

#include <string>

#include <QString>

namespace External::ShaderISF {

/// `text` in one line of bounded length: control characters escaped, quotes around, and an ellipsis in place of what
/// is too long.
std::string quote(std::string const & text);
std::string quote(QString const & text);

/// The first characters of `text`, whole in UTF-8, with an ellipsis behind if there are more.
std::string shorten(std::string const & text);

} // namespace External::ShaderISF
