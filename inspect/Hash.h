/// @file
/// Checksums by which files are recognised.
#pragma once

#include <string>
#include <string_view>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// SHA-256 of the bytes, as 64 hexadecimal digits in lower case.
EFFECTS_INSPECT_API std::string sha256(std::string_view bytes);

} // namespace Effect::Inspect
