#pragma once

#include <effects/archive/Base.h>
#include <effects/Distortion.h>

namespace Effect {

template <class Archive> void Twirl::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("startRotate", startRotate), field("speedRotate", speedRotate),
        field("startTwirl", startTwirl), field("speedTwirl", speedTwirl));
}

template <class Archive> void Vertigo::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("scale", scale), field("speed", speed));
}

template <class Archive> void FishEye::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("deviation", deviation));
}

template <class Archive> void LensDistortion::serialize(Archive & archive)
{
    fields<VideoEffect>(
        archive, *this, field("zoom", zoom), field("distortion", distortion), field("memberCount", memberCount));
}

template <class Archive> void CameraShake::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("shuft_x", shuft_x), field("shuft_y", shuft_y), field("rotate", rotate),
        field("frequency", frequency), field("persistence", persistence));
}

template <class Archive> void ChromaticAberration::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

} // namespace Effect
