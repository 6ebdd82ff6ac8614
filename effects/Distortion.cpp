#include <effects/Distortion.h>

#include <effects/ClassList.h>
#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECTS_DISTORTION(EFFECT_VIDEO_FILTER)

} // namespace Effect
