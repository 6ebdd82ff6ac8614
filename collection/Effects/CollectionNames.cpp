#include <collection/Effects/CollectionNames.h>

namespace Effect {

namespace CollectionNames {
QString const effects{QLatin1String("Effects")};
QString const effectsAudio{QLatin1String("EffectsAudio")};
QString const colorFilters{QLatin1String("ColorFilters")};
QString const luts{QLatin1String("Luts")};
QString const overlayEffects{QLatin1String("OverlayEffects")};
QString const audioEnhance{QLatin1String("AudioEnhance")};
QString const pipEffects{QLatin1String("PipEffects")};
QString const masks{QLatin1String("Masks")};
QString const shaderEffects{QLatin1String("Shader effects")};
QString const transitions{QLatin1String("Transitions")};
QString const title{QLatin1String("Title")};
QString const intro{QLatin1String("Intro")};
QString const callout{QLatin1String("Callout")};
QString const videos{QLatin1String("Videos")};
QString const backgrounds{QLatin1String("Backgrounds")};
QString const music{QLatin1String("Music")};
QString const sounds{QLatin1String("Sounds")};
QString const frames{QLatin1String("Frames")};
QString const userFiles{QLatin1String("UserFiles")};
QString const sticker{QLatin1String("Sticker")};
QString const specialEffects{QLatin1String("Special effects")};
QString const themes{QLatin1String("Themes")};
QString const themesVideo{QLatin1String("ThemesVideo")};
QString const themesAudio{QLatin1String("ThemesAudio")};
QString const themesTitles{QLatin1String("ThemesTitles")};
QString const wizardBackgrounds{QLatin1String("WizardBackgrounds")};
QString const animations{QLatin1String("Animations")};
QString const panAndZoom{QLatin1String("PanAndZoom")};
QString const packs{QLatin1String("Packs")};
QString const tools{QLatin1String("Tools")};
} // namespace CollectionNames

namespace CategoryNames {
QString const flyingObjects{QLatin1String("category_flying_objects")};
QString const blur{QLatin1String("category_blur")};
QString const addNoise{QLatin1String("category_add_noise")};
QString const artistic{QLatin1String("category_artistic")};
QString const colorFilters{QLatin1String("category_color_filters")};
QString const mosaic{QLatin1String("category_mosaic")};
QString const lutCold{QLatin1String("category_lut_cold")};
QString const adjust{QLatin1String("category_adjust")};
QString const overlayFrames{QLatin1String("category_overlay_frames")};
QString const overlayShadows{QLatin1String("category_overlay_shadows")};
QString const lutWarm{QLatin1String("category_lut_warm")};
QString const retroMovie{QLatin1String("category_retro_movie")};
// Without the prefix: so it has always been.
QString const vignettes{QLatin1String("Vignettes")};
QString const overlayCyberpunk{QLatin1String("category_overlay_cyberpunk")};
QString const overlayArtsy{QLatin1String("category_overlay_artsy")};
QString const lightLeaks{QLatin1String("category_light_leaks")};
} // namespace CategoryNames

QString const motionTrackingName{QLatin1String("MotionTracking")};
QString const emptyStreamResource{QLatin1String("RESOURCE##EMPTY_STREAM")};

} // namespace Effect
