#pragma once

#include <effects/archive/Base.h>
#include <effects/Modulation.h>

namespace Effect {

EFFECT_FIELDS(AudioDistortion, AudioEffect, type, boost, tone)
EFFECT_FIELDS(AudioReverb, AudioFilter, delay, duration, dryWetBalance, frequency)
EFFECT_FIELDS(AudioFlanger, AudioEffect, shape, interpolation, delay, depth, regen, speed, phase)
EFFECT_FIELDS(AudioVibrato, AudioEffect, frequencyHz)

} // namespace Effect
