/// @file
/// Identifiers and tags of the effects that the library keeps to itself.
#pragma once

#include <effects/Identity.h>

namespace Effect {

namespace Id {
extern QString const AddNoize;
extern QString const AudioEcho;
extern QString const AudioMuffle;
extern QString const AudioPhone;
extern QString const AudioPitch;
extern QString const AudioRadio;
extern QString const AudioRobot;
extern QString const Blur;
extern QString const BokehBlur;
extern QString const CameraShake;
extern QString const ChromaticAberration;
extern QString const ColorBrush;
extern QString const ColorFilter;
extern QString const ColorMixBurn;
extern QString const ColorMixExchange;
extern QString const ColorSelect;
extern QString const Diffuse;
extern QString const Erosion;
extern QString const FilmStrip;
extern QString const FindEdges;
extern QString const FishEye;
extern QString const Flip;
extern QString const FlyingObjects;
extern QString const GlassMosaic;
extern QString const GlitchMpeg;
extern QString const GlitchSecurityCam;
extern QString const HalfTone;
extern QString const Invert;
extern QString const LensDistortion;
extern QString const LensFlare;
extern QString const LightLeaks;
extern QString const Mirror;
extern QString const Mosaic;
extern QString const MotionBlur;
extern QString const OilPaint;
extern QString const PopArt;
extern QString const Posterize;
extern QString const RetroArtefacts;
extern QString const RetroColors;
extern QString const Sharpen;
extern QString const Stripes;
extern QString const Television70s;
extern QString const TiltShift;
extern QString const Twirl;
extern QString const VHS;
extern QString const Vertigo;
extern QString const VignetteFilter;
extern QString const ColorMixField;
} // namespace Id

namespace Tags {
extern QString const tagAddNoize;
extern QString const tagAudioEcho;
extern QString const tagAudioMuffle;
extern QString const tagAudioPhone;
extern QString const tagAudioPitch;
extern QString const tagAudioRadio;
extern QString const tagAudioRobot;
extern QString const tagBlur;
extern QString const tagBokehBlur;
extern QString const tagCameraShake;
extern QString const tagChromaticAberration;
extern QString const tagColorBrush;
extern QString const tagColorFilter;
extern QString const tagColorMixBurn;
extern QString const tagColorMixExchange;
extern QString const tagColorSelect;
extern QString const tagDiffuse;
extern QString const tagErosion;
extern QString const tagFilmStrip;
extern QString const tagFindEdges;
extern QString const tagFishEye;
extern QString const tagFlip;
extern QString const tagFlyingObjects;
extern QString const tagGlassMosaic;
extern QString const tagGlitchMpeg;
extern QString const tagGlitchSecurityCam;
extern QString const tagHalfTone;
extern QString const tagInvert;
extern QString const tagLensDistortion;
extern QString const tagLensFlare;
extern QString const tagLightLeaks;
extern QString const tagMirror;
extern QString const tagMosaic;
extern QString const tagMotionBlur;
extern QString const tagOilPaint;
extern QString const tagPopArt;
extern QString const tagPosterize;
extern QString const tagRetroArtefacts;
extern QString const tagRetroColors;
extern QString const tagSharpen;
extern QString const tagStripes;
extern QString const tagTelevision70s;
extern QString const tagTiltShift;
extern QString const tagTwirl;
extern QString const tagVHS;
extern QString const tagVertigo;
extern QString const tagVignetteFilter;
extern QString const tagColorMixField;
} // namespace Tags

} // namespace Effect
