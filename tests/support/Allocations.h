/// @file
/// What the program's operators new have given out since its start. Memory that was given back stays counted.
#pragma once

#include <cstddef>

namespace Testing {

std::size_t allocatedBytes();
std::size_t allocationCount();

} // namespace Testing
