#pragma once

#include <effects/archive/Base.h>
#include <effects/Holder.h>

namespace Effect {

template <class Archive> void EffectsHolder::serialize(Archive & archive)
{
    fields<EffectDescriptor>(archive, *this, field("effects", effects));
}

template <class Archive> void AudioEnhance::serialize(Archive & archive)
{
    fields<EffectsHolder>(archive, *this);
}

} // namespace Effect
