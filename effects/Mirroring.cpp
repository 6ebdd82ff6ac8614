#include <effects/Mirroring.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

QString Flip::defaultTag() const
{
    return Tags::tagFlip;
}

QString Mirror::defaultTag() const
{
    return Tags::tagMirror;
}

} // namespace Effect
