/// @file
/// The catalogue's vocabulary, in which library, host and saved projects agree. The values never change, odd spellings
/// included. A constant is valid once the library's static initialisation has run.
#pragma once

#include <QString>

namespace Effect {

namespace CollectionNames {
// Filled by the content provider, but for the shaders'.
extern QString const effects;
extern QString const effectsAudio;
extern QString const colorFilters;
extern QString const luts;
extern QString const overlayEffects;
extern QString const audioEnhance;
extern QString const pipEffects;
extern QString const masks;
extern QString const shaderEffects;

// The host's.
extern QString const transitions;
extern QString const title;
extern QString const intro;
extern QString const callout;
extern QString const videos;
extern QString const backgrounds;
extern QString const music;
extern QString const sounds;
extern QString const frames;
extern QString const userFiles;
extern QString const sticker;
extern QString const specialEffects;
extern QString const themes;
extern QString const themesVideo;
extern QString const themesAudio;
extern QString const themesTitles;
extern QString const wizardBackgrounds;
extern QString const animations;
extern QString const panAndZoom;
extern QString const packs;
extern QString const tools;
} // namespace CollectionNames

/// Categories come into being with the items that name them. These are the ones that a host refers to in code; the
/// stock has more.
namespace CategoryNames {
extern QString const flyingObjects;
extern QString const blur;
extern QString const addNoise;
extern QString const artistic;
extern QString const colorFilters;
extern QString const mosaic;
extern QString const lutCold;
extern QString const adjust;
extern QString const overlayFrames;
extern QString const overlayShadows;
extern QString const lutWarm;
extern QString const retroMovie;
extern QString const vignettes;
extern QString const overlayCyberpunk;
extern QString const overlayArtsy;
extern QString const lightLeaks;
} // namespace CategoryNames

/// The host's name for its motion tracks.
extern QString const motionTrackingName;
/// The name of a resource that is a stream without data.
extern QString const emptyStreamResource;

} // namespace Effect
