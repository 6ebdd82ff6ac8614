#include <effects/ColorFilters.h>

#include <effects/ClassList.h>
#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECTS_COLOR_FILTERS(EFFECT_VIDEO_FILTER)

} // namespace Effect
