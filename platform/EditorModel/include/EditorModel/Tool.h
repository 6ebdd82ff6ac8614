/// @file
/// The editor's tools.
#pragma once

#include <cstdint>

namespace Tool {

/// A tool of the editor that sets up an effect. The other numbers belong to tools that do not set up effects.
enum class Type : std::int32_t
{
    None = 0,
    ColorAdjustment = 4,
    Crop = 5,
    PictureInPicture = 6,
    Zoom = 7,
    ChromaKey = 8,
    Mask = 11,
    AudioEqualizer = 14,
    AudioEffects = 15,
    AudioEnhancement = 16,
    AudioNoiseReduction = 17,
    Reverb = 18,
    Compressor = 19,
    NoiseGate = 20,
    BackgroundRemoval = 24,
};

} // namespace Tool
