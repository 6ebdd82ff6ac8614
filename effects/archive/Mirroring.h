#pragma once

#include <effects/archive/Base.h>
#include <effects/Mirroring.h>

namespace Effect {

template <class Archive> void Flip::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("vertical", vertical), field("horizontal", horizontal));
}

template <class Archive> void Mirror::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("vertical", vertical), field("horizontal", horizontal));
}

} // namespace Effect
