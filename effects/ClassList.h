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

/// Everything, family by family.
#define EFFECTS_ALL(X)                                                                                                 \
    EFFECTS_BASES(X)                                                                                                   \
    EFFECTS_COLOR_CORRECTION(X)
