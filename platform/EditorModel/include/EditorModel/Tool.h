/// @file
/// The editor's tools.
#pragma once

#include <cstdint>

namespace Tool {

/// A tool of the editor that sets up an effect. The numbers between these belong to tools that edit something else.
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
