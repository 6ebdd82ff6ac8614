/// @file
/// Everything that the library exports.
#pragma once

#include <collection/Effects/ContentProvider.h>
#include <effects/Base.h>
#include <effects/ColorCorrection.h>
#include <effects/Identity.h>
#include <utils/EffectUtils.h>
