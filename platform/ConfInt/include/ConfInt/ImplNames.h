/// @file
/// Names of the render engine's implementations.
#pragma once

#include <string>

#include <ConfInt/Export.h>

namespace Quoril::Proc::ImplNames {

CONFINT_EXPORT extern std::string const DEFAULT; ///< the engine's choice
CONFINT_EXPORT extern std::string const OGL;     ///< OpenGL
CONFINT_EXPORT extern std::string const SPEEX;   ///< the Speex pre-processor

} // namespace Quoril::Proc::ImplNames
