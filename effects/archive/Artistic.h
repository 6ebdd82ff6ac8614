#pragma once

#include <effects/archive/Base.h>
#include <effects/Artistic.h>

namespace Effect {

EFFECT_FIELDS(OilPaint, VideoEffect, radius)
EFFECT_FIELDS(PopArt, VideoEffect, preset)
EFFECT_FIELDS(Posterize, VideoEffect, colorsNumber)
EFFECT_FIELDS(FindEdges, VideoEffect, sensibility, type)
EFFECT_FIELDS(HalfTone, VideoEffect, bkgnd, dtclr, scale, angle)
EFFECT_FIELDS(Mosaic, VideoEffect, type, amountVer, amountHor)
EFFECT_FIELDS(GlassMosaic, VideoEffect, angle, curve, repeatsh, repeatsv)
EFFECT_FIELDS(Erosion, VideoEffect, type)
EFFECT_FIELDS(Diffuse, VideoEffect, level, prob)
EFFECT_FIELDS(Stripes, VideoEffect, count, deep)
EFFECT_FIELDS(AddNoize, VideoEffect, type)

} // namespace Effect
