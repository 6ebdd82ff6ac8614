#include <effects/Geometry.h>

#include <effects/Identity.h>

namespace Effect {

EFFECT_SETTER(Crop, setTransform, Types::Transform const &, transform)
EFFECT_SETTER(Transpose, setAngle, int, angle)

} // namespace Effect
