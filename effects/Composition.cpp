#include <effects/Composition.h>

#include <effects/Identity.h>

namespace Effect {

PictureInPicture::PictureInPicture()
    : VideoEffect(Id::PictureInPicture, Group::GroupPip)
{
    tag = Tags::tagPIP;
}

SideBySide::SideBySide()
    : VideoEffect(Id::SideBySide, Group::GroupPip)
{
    tag = Tags::tagSideBySide;
}

QString PictureInPicture::defaultTag() const
{
    return Tags::tagPIP;
}

QString SideBySide::defaultTag() const
{
    return Tags::tagSideBySide;
}

EFFECT_SETTER(PictureInPicture, setTransform, Types::Transform const &, transform)
EFFECT_SETTER(SideBySide, setTransformSrc, Types::Transform const &, transformSrc)
EFFECT_SETTER(SideBySide, setTransformDst, Types::Transform const &, transformDst)
EFFECT_SETTER(Opacity, setOpacity, double, opacity)

ColorBlendingBase::ColorBlendingBase(QString const & effectId, QString const & group)
    : VideoEffect(effectId, group)
{}

Overlay::Overlay()
    : ColorBlendingBase(Id::Overlay, Id::Overlay)
{
    tag = Tags::tagOverlay;
    intensity = 1.0;
    mode = Mode{0};
}

Overlay * Overlay::setResourceID(Resource::ID const & value)
{
    resource = value;
    groupId = value.name();
    return this;
}

bool Overlay::hasIntensity() const
{
    return true;
}

ColorBlending::ColorBlending()
    : ColorBlendingBase(Id::ColorBlending, Id::ColorBlending)
{
    tag = Tags::tagColorBlending;
    intensity = 1.0;
}

bool ColorBlending::hasIntensity() const
{
    return false;
}

bool ColorBlending::isTwoInput() const
{
    return true;
}

AlphaInserter::AlphaInserter()
    : VideoEffect(Id::AlphaInserter, Id::AlphaInserter)
{}

bool AlphaInserter::isTwoInput() const
{
    return true;
}

} // namespace Effect
