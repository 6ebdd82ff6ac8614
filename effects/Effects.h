/// @file
/// Everything that the library exports.
#pragma once

#include <collection/Effects/ContentProvider.h>
#include <effects/Base.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Dynamics.h>
#include <effects/Equalizer.h>
#include <effects/Geometry.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <effects/Modulation.h>
#include <effects/Shaders.h>
#include <utils/EffectUtils.h>
#include <utils/LutUtils.h>
