#include <effects/Geometry.h>

#include <effects/Identity.h>

namespace Effect {

EFFECT_CONSTRUCTOR(Crop, VideoEffect, Id::Crop, Id::Crop, Tags::tagCrop)
EFFECT_CONSTRUCTOR(Transpose, VideoEffect, Id::Transpose, Id::Transpose, Tags::tagTranspose)
EFFECT_CONSTRUCTOR(FixVertVideo, VideoEffect, Id::FixVertVideo, Id::FixVertVideo, Tags::tagVerticalVideo)

EFFECT_SETTER(Crop, setTransform, Types::Transform const &, transform)
EFFECT_SETTER(Transpose, setAngle, int, angle)

} // namespace Effect
