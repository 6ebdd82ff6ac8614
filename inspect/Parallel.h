/// @file
/// Work on all of the machine's cores.
#pragma once

#include <cstddef>
#include <functional>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// Calls `task` for each number below `count`, on as many threads as there are cores, in about that order, and waits
/// for all of them. What a task throws ends the work; the first exception is thrown on.
EFFECTS_INSPECT_API void parallel(std::size_t count, std::function<void(std::size_t)> const & task);

} // namespace Effect::Inspect
