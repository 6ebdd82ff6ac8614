#pragma once

#include <effects/archive/Base.h>
#include <effects/Composition.h>

namespace Effect {

template <class Archive> void PictureInPicture::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("transform", transform));
}

template <class Archive> void SideBySide::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("transformSrc", transformSrc), field("transformDst", transformDst));
}

template <class Archive> void Opacity::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("opacity", opacity));
}

template <class Archive> void ChromaKey::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("color", color), field("hueTolerance", hueTolerance),
        field("noiseLevel", noiseLevel), field("harshness", harshness), field("transparency", transparency));
}

// The class between is no link in the archives.
template <class Archive> void Overlay::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("mode", mode));
}

template <class Archive> void ColorBlending::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this, field("mode", mode));
}

template <class Archive> void AlphaInserter::serialize(Archive & archive)
{
    fields<VideoEffect>(archive, *this);
}

} // namespace Effect
