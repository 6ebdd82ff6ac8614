#include <inspect/ToolName.h>

namespace Effect::Inspect {

char const * toolName(Tool::Type tool)
{
    switch (tool) {
    case Tool::Type::None:
        return "no tool";
    case Tool::Type::ColorAdjustment:
        return "colour adjustment";
    case Tool::Type::Crop:
        return "crop";
    case Tool::Type::PictureInPicture:
        return "picture-in-picture layout";
    case Tool::Type::Zoom:
        return "zoom";
    case Tool::Type::ChromaKey:
        return "chroma key";
    case Tool::Type::Mask:
        return "mask";
    case Tool::Type::AudioEqualizer:
        return "audio equalizer";
    case Tool::Type::AudioEffects:
        return "audio effects";
    case Tool::Type::AudioEnhancement:
        return "audio enhancement";
    case Tool::Type::AudioNoiseReduction:
        return "audio noise reduction";
    case Tool::Type::Reverb:
        return "reverb";
    case Tool::Type::Compressor:
        return "compressor";
    case Tool::Type::NoiseGate:
        return "noise gate";
    case Tool::Type::BackgroundRemoval:
        return "background removal";
    }
    return "";
}

} // namespace Effect::Inspect
