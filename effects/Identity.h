/// @file
/// The vocabulary that saved projects hold: identifiers, tags and groups. The values never change, odd spellings
/// included.
///
/// Identifiers look like UUIDs, but some of them use letters beyond hexadecimal: compare them as texts, never parse
/// them. A constant is valid once the library's static initialisation has run.
#pragma once

#include <effects/Export.h>

#include <QString>

namespace Effect {

/// What an effect is: `Effect::Object::id`.
namespace Id {
/// @{
/// Identifier of the effects of that name.
EFFECTS_API extern QString const AlphaInserter;
EFFECTS_API extern QString const AiDenoise;
EFFECTS_API extern QString const Compressor;
EFFECTS_API extern QString const Distortion;
EFFECTS_API extern QString const AudioEnhance;
EFFECTS_API extern QString const AudioEqualizer;
EFFECTS_API extern QString const Flanger;
EFFECTS_API extern QString const AudioMonoChannel;
EFFECTS_API extern QString const NoiseGate;
EFFECTS_API extern QString const NoiseSuppress;
EFFECTS_API extern QString const Normalize;
EFFECTS_API extern QString const Reverb;
EFFECTS_API extern QString const Vibrato;
EFFECTS_API extern QString const AutoContrast;
EFFECTS_API extern QString const AutoSaturation;
EFFECTS_API extern QString const BackgroundRemove;
EFFECTS_API extern QString const ChromaKey;
EFFECTS_API extern QString const ColorBlending;
EFFECTS_API extern QString const Crop;
EFFECTS_API extern QString const ExternalShader;
EFFECTS_API extern QString const FixVertVideo;
EFFECTS_API extern QString const Lut;
EFFECTS_API extern QString const MagicEnhance;
EFFECTS_API extern QString const ManualEnhance;
EFFECTS_API extern QString const Mask;
EFFECTS_API extern QString const Opacity;
EFFECTS_API extern QString const Overlay;
EFFECTS_API extern QString const PictureInPicture;
EFFECTS_API extern QString const ShaderISF;
EFFECTS_API extern QString const SideBySide;
EFFECTS_API extern QString const Transpose;
EFFECTS_API extern QString const WhiteBalance;
/// @}
} // namespace Id

/// What a new effect is tagged with: `Effect::Object::tag`.
namespace Tags {
/// @{
/// Tag of the effects of that name.
EFFECTS_API extern QString const tagAiDenoise;
EFFECTS_API extern QString const tagAudioCompressor;
EFFECTS_API extern QString const tagAudioDistortion;
EFFECTS_API extern QString const tagAudioEnhance;
EFFECTS_API extern QString const tagAudioEqualizer;
EFFECTS_API extern QString const tagAudioFlanger;
EFFECTS_API extern QString const tagAudioMonoChannel;
EFFECTS_API extern QString const tagAudioNoiseGate;
EFFECTS_API extern QString const tagNoizeSupress;
EFFECTS_API extern QString const tagAudioNormalize;
EFFECTS_API extern QString const tagAudioReverb;
EFFECTS_API extern QString const tagAudioVibrato;
EFFECTS_API extern QString const tagAutoContrast;
EFFECTS_API extern QString const tagAutoSaturation;
EFFECTS_API extern QString const tagBackgroundRemove;
EFFECTS_API extern QString const tagChromaKey;
EFFECTS_API extern QString const tagColorBlending;
EFFECTS_API extern QString const tagCrop;
EFFECTS_API extern QString const tagExternalShader;
EFFECTS_API extern QString const tagVerticalVideo;
EFFECTS_API extern QString const tagLut;
EFFECTS_API extern QString const tagMagicEnhance;
EFFECTS_API extern QString const tagManualEnhance;
EFFECTS_API extern QString const tagMask;
EFFECTS_API extern QString const tagOpacity;
EFFECTS_API extern QString const tagOverlay;
EFFECTS_API extern QString const tagPIP;
EFFECTS_API extern QString const tagShaderISF;
EFFECTS_API extern QString const tagSideBySide;
EFFECTS_API extern QString const tagTranspose;
EFFECTS_API extern QString const tagWhiteBalance;
/// @}
} // namespace Tags

/// Groups that hold effects of more than one kind: `Effect::Object::groupId`.
namespace Group {
/// @{
/// Identifier of the group of that name.
EFFECTS_API extern QString const GroupAudioNoiseReduction;
EFFECTS_API extern QString const GroupPip;
EFFECTS_API extern QString const GroupZoom;
/// @}
} // namespace Group

} // namespace Effect
