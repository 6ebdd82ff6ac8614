/// @file
/// Factories of plane transforms.
#pragma once

#include <ConfInt/Export.h>
#include <Utils/Matrix3x3.h>

namespace Quoril::Conf::Transform2D {

/// Rotation by `angle` radians: the rows (cos a, sin a, 0), (-sin a, cos a, 0), (0, 0, 1).
CONFINT_EXPORT Core::Matrix3x3 MakeRotation(double angle);

} // namespace Quoril::Conf::Transform2D
