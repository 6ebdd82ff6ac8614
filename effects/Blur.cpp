#include <effects/Blur.h>

#include <effects/ClassList.h>
#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECTS_BLUR(EFFECT_VIDEO_FILTER)

} // namespace Effect
