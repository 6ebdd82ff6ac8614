/// @file
/// Names under which the render engine knows its implementations.
#pragma once

#include <string>

#include <ConfInt/Export.h>

namespace Quoril::Proc::ImplNames {

CONFINT_EXPORT extern std::string const DEFAULT; ///< whatever the engine prefers
CONFINT_EXPORT extern std::string const OGL;     ///< OpenGL
CONFINT_EXPORT extern std::string const SPEEX;   ///< the Speex pre-processor

} // namespace Quoril::Proc::ImplNames
