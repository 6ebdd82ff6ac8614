#include <effects/Retro.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

QString FilmStrip::defaultTag() const
{
    return Tags::tagFilmStrip;
}

} // namespace Effect
