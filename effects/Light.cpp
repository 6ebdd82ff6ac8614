#include <effects/Light.h>

#include <effects/ClassList.h>
#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECTS_LIGHT(EFFECT_VIDEO_FILTER)

} // namespace Effect
