#include <effects/Artistic.h>

#include <effects/ClassList.h>
#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECTS_ARTISTIC(EFFECT_VIDEO_FILTER)

} // namespace Effect
