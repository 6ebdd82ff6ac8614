/// @file
/// A count of what the program's operators new have given out.
#pragma once

#include <cstddef>

/// In bytes, since the start of the program; what was given back stays counted.
std::size_t AllocatedBytes();
