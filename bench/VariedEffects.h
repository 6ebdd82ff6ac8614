// Effects of every kind with their fields off the defaults, for the benchmarks.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <EditorModel/EffectObject.h>

/// `count` effects, the classes taking turns. The same ones in every run.
std::vector<std::unique_ptr<Effect::Object>> makeVariedEffects(std::size_t count);
