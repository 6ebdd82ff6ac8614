/// @file
/// How GoogleTest prints the values of the library.
#pragma once

#include <ostream>

#include <Settings/Value.h>

namespace Quoril::Proc {

inline void PrintTo(Value const & value, std::ostream * out)
{
    *out << value.toString();
}

} // namespace Quoril::Proc
