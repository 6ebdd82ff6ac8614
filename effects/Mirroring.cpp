#include <effects/Mirroring.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECT_CONSTRUCTOR(Flip, VideoEffect, Id::Flip, Id::Flip, Tags::tagFlip)
EFFECT_CONSTRUCTOR(Mirror, VideoEffect, Id::Mirror, Id::Mirror, Tags::tagMirror)

EFFECT_DEFAULT_TAG(Flip, Tags::tagFlip)
EFFECT_DEFAULT_TAG(Mirror, Tags::tagMirror)

} // namespace Effect
