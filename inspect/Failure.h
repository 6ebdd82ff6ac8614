#pragma once

#include <stdexcept>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// Why something could not be done, as one line for the user: it names the file and the place where there is one.
class EFFECTS_INSPECT_API Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error; ///< from the line
};

} // namespace Effect::Inspect
