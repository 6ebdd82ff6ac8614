#pragma once

#include <effects/archive/Base.h>
#include <effects/Artistic.h>

namespace Effect {

EFFECT_VIDEO_FIELDS(OilPaint, radius)
EFFECT_VIDEO_FIELDS(PopArt, preset)
EFFECT_VIDEO_FIELDS(Posterize, colorsNumber)
EFFECT_VIDEO_FIELDS(FindEdges, sensibility, type)
EFFECT_VIDEO_FIELDS(HalfTone, bkgnd, dtclr, scale, angle)
EFFECT_VIDEO_FIELDS(Mosaic, type, amountVer, amountHor)
EFFECT_VIDEO_FIELDS(GlassMosaic, angle, curve, repeatsh, repeatsv)
EFFECT_VIDEO_FIELDS(Erosion, type)
EFFECT_VIDEO_FIELDS(Diffuse, level, prob)
EFFECT_VIDEO_FIELDS(Stripes, count, deep)
EFFECT_VIDEO_FIELDS(AddNoize, type)

} // namespace Effect
