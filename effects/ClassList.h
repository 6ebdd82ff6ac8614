/// @file
/// Every class that has an archive name, once, by family. The list drives registration, the typed tests, the golden
/// archives and the generated reference.
#pragma once

#define EFFECTS_BASES(X)                                                                                               \
    X(EffectDescriptor)                                                                                                \
    X(VideoEffect)                                                                                                     \
    X(AudioFilter)                                                                                                     \
    X(AudioEffect)

#define EFFECTS_COLOR_CORRECTION(X)                                                                                    \
    X(AutoContrast)                                                                                                    \
    X(AutoSaturation)                                                                                                  \
    X(WhiteBalance)                                                                                                    \
    X(MagicEnhance)                                                                                                    \
    X(ManualEnhance)

#define EFFECTS_GEOMETRY(X)                                                                                            \
    X(Crop)                                                                                                            \
    X(Transpose)                                                                                                       \
    X(FixVertVideo)

#define EFFECTS_COMPOSITION(X)                                                                                         \
    X(PictureInPicture)                                                                                                \
    X(SideBySide)                                                                                                      \
    X(Opacity)                                                                                                         \
    X(ChromaKey)                                                                                                       \
    X(Overlay)                                                                                                         \
    X(ColorBlending)                                                                                                   \
    X(AlphaInserter)

#define EFFECTS_MASK(X)                                                                                                \
    X(Frame)                                                                                                           \
    X(FrameHighlight)                                                                                                  \
    X(FrameConceal)                                                                                                    \
    X(Mask)

#define EFFECTS_SHADERS(X)                                                                                             \
    X(Lut)                                                                                                             \
    X(ShaderISF)                                                                                                       \
    X(ExternalShader)

#define EFFECTS_EQUALIZER(X)                                                                                           \
    X(AudioEqualizer::BandEq)                                                                                          \
    X(AudioEqualizer)

#define EFFECTS_DYNAMICS(X)                                                                                            \
    X(AudioNoiseGate)                                                                                                  \
    X(AudioCompressor)

#define EFFECTS_MODULATION(X)                                                                                          \
    X(AudioDistortion)                                                                                                 \
    X(AudioReverb)                                                                                                     \
    X(AudioFlanger)                                                                                                    \
    X(AudioVibrato)

#define EFFECTS_CLEAN_UP(X)                                                                                            \
    X(AudioNoiseSuppress)                                                                                              \
    X(AudioMonoChannel)                                                                                                \
    X(AudioAiDenoise)                                                                                                  \
    X(AudioNormalize)                                                                                                  \
    X(BackgroundRemove)

#define EFFECTS_HOLDER(X)                                                                                              \
    X(EffectsHolder)                                                                                                   \
    X(AudioEnhance)

#define EFFECTS_MIRRORING(X)                                                                                           \
    X(Flip)                                                                                                            \
    X(Mirror)

#define EFFECTS_BLUR(X)                                                                                                \
    X(Blur)                                                                                                            \
    X(BokehBlur)                                                                                                       \
    X(MotionBlur)                                                                                                      \
    X(TiltShift)                                                                                                       \
    X(Sharpen)

#define EFFECTS_DISTORTION(X)                                                                                          \
    X(Twirl)                                                                                                           \
    X(Vertigo)                                                                                                         \
    X(FishEye)                                                                                                         \
    X(LensDistortion)                                                                                                  \
    X(CameraShake)                                                                                                     \
    X(ChromaticAberration)

#define EFFECTS_ARTISTIC(X)                                                                                            \
    X(OilPaint)                                                                                                        \
    X(PopArt)                                                                                                          \
    X(Posterize)                                                                                                       \
    X(FindEdges)                                                                                                       \
    X(HalfTone)                                                                                                        \
    X(Mosaic)                                                                                                          \
    X(GlassMosaic)                                                                                                     \
    X(Erosion)                                                                                                         \
    X(Diffuse)                                                                                                         \
    X(Stripes)                                                                                                         \
    X(AddNoize)

#define EFFECTS_RETRO(X)                                                                                               \
    X(RetroArtefacts)                                                                                                  \
    X(RetroColors)                                                                                                     \
    X(VHS)                                                                                                             \
    X(Television70s)                                                                                                   \
    X(GlitchMpeg)                                                                                                      \
    X(GlitchSecurityCam)                                                                                               \
    X(FilmStrip)

#define EFFECTS_COLOR_FILTERS(X)                                                                                       \
    X(ColorBrush)                                                                                                      \
    X(ColorFilter)                                                                                                     \
    X(ColorMixBurn)                                                                                                    \
    X(ColorSelect)                                                                                                     \
    X(ColorMixExchange)                                                                                                \
    X(Invert)

#define EFFECTS_LIGHT(X)                                                                                               \
    X(FlyingObjects)                                                                                                   \
    X(LensFlare)                                                                                                       \
    X(LightLeaks)                                                                                                      \
    X(VignetteFilter)

#define EFFECTS_VOICE(X)                                                                                               \
    X(AudioPhone)                                                                                                      \
    X(AudioMuffle)                                                                                                     \
    X(AudioRadio)                                                                                                      \
    X(AudioEcho::Echo)                                                                                                 \
    X(AudioEcho)                                                                                                       \
    X(AudioPitch)                                                                                                      \
    X(AudioRobot)

/// Every family: `F(family, list, X)`, with the name that its sources have.
#define EFFECTS_FAMILIES(F, X)                                                                                         \
    F(Base, EFFECTS_BASES, X)                                                                                          \
    F(ColorCorrection, EFFECTS_COLOR_CORRECTION, X)                                                                    \
    F(Geometry, EFFECTS_GEOMETRY, X)                                                                                   \
    F(Composition, EFFECTS_COMPOSITION, X)                                                                             \
    F(Mask, EFFECTS_MASK, X)                                                                                           \
    F(Shaders, EFFECTS_SHADERS, X)                                                                                     \
    F(Equalizer, EFFECTS_EQUALIZER, X)                                                                                 \
    F(Dynamics, EFFECTS_DYNAMICS, X)                                                                                   \
    F(Modulation, EFFECTS_MODULATION, X)                                                                               \
    F(CleanUp, EFFECTS_CLEAN_UP, X)                                                                                    \
    F(Holder, EFFECTS_HOLDER, X)                                                                                       \
    F(Mirroring, EFFECTS_MIRRORING, X)                                                                                 \
    F(Blur, EFFECTS_BLUR, X)                                                                                           \
    F(Distortion, EFFECTS_DISTORTION, X)                                                                               \
    F(Artistic, EFFECTS_ARTISTIC, X)                                                                                   \
    F(Retro, EFFECTS_RETRO, X)                                                                                         \
    F(ColorFilters, EFFECTS_COLOR_FILTERS, X)                                                                          \
    F(Light, EFFECTS_LIGHT, X)                                                                                         \
    F(Voice, EFFECTS_VOICE, X)

/// Everything, family by family.
#define EFFECTS_ALL(X) EFFECTS_FAMILIES(EFFECTS_OF_FAMILY, X)
#define EFFECTS_OF_FAMILY(family, list, X) list(X)
