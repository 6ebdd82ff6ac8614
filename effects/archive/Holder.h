#pragma once

#include <effects/archive/Base.h>
#include <effects/Holder.h>

namespace Effect {

EFFECT_FIELDS(EffectsHolder, EffectDescriptor, effects)
EFFECT_FIELDS(AudioEnhance, EffectsHolder)

} // namespace Effect
