#include <ConfInt/ImplNames.h>
#include <ConfInt/Transform2D.h>

#include <cmath>

namespace Quoril {

namespace Proc::ImplNames {

std::string const DEFAULT = "DEFAULT";
std::string const OGL = "OGL";
std::string const SPEEX = "SPEEX";

} // namespace Proc::ImplNames

namespace Conf::Transform2D {

Core::Matrix3x3 MakeRotation(double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    return {c, s, 0, -s, c, 0, 0, 0, 1};
}

} // namespace Conf::Transform2D

} // namespace Quoril
