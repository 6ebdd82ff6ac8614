#include <effects/Mask.h>

#include <EditorModel/Fuzzy.h>
#include <effects/Identity.h>

namespace Effect {

namespace {

bool looksAlike(Frame const & a, Frame const & b)
{
    return a.shape == b.shape && a.transform == b.transform && a.outline == b.outline;
}

} // namespace

// The setters of a frame return its own class.
#define FRAME_SETTERS(Class)                                                                                           \
    EFFECT_SETTER(Class, setShape, Shape, shape)                                                                       \
    EFFECT_SETTER(Class, setOutline, bool, outline)                                                                    \
    EFFECT_SETTER(Class, setTrackingId, QString const &, trackingId)                                                   \
    EFFECT_SETTER(Class, setTrackingTransform, Types::Transform const &, trackingTransform)                            \
    EFFECT_SETTER(Class, setTranform, Types::Transform, transform)

FRAME_SETTERS(FrameHighlight)
FRAME_SETTERS(FrameConceal)

#undef FRAME_SETTERS

EFFECT_SETTER(FrameConceal, setMethod, Method, method)
EFFECT_SETTER(FrameConceal, setOpacity, double, opacity)
EFFECT_SETTER(FrameConceal, setSmoothness, double, smoothness)
EFFECT_SETTER(FrameConceal, setPixelSize, double, pixelSize)

bool FrameHighlight::operator==(FrameHighlight const & other) const
{
    return this == &other || looksAlike(*this, other);
}

bool FrameConceal::operator==(FrameConceal const & other) const
{
    return this == &other || (method == other.method && looksAlike(*this, other) &&
                                 fuzzyEqual(opacity, other.opacity) && fuzzyEqual(smoothness, other.smoothness));
}

EFFECT_SETTER(Mask, setBackgroundFill, BackgroundFill, backgroundFill)
EFFECT_SETTER(Mask, setBackgroundOpacity, double, backgroundOpacity)
EFFECT_SETTER(Mask, setBackgroundSmoothness, double, backgroundSmoothness)

Mask * Mask::addFrame(FrameHighlight const & frame)
{
    highlightFrames.push_back(frame);
    return this;
}

Mask * Mask::addFrame(FrameConceal const & frame)
{
    concealFrames.push_back(frame);
    return this;
}

Mask * Mask::clearHighlightFrames()
{
    highlightFrames.clear();
    return this;
}

Mask * Mask::clearConcealFrames()
{
    concealFrames.clear();
    return this;
}

} // namespace Effect
