#include <collection/Effects/CollectionNames.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;

struct Row
{
    QString const & constant;
    char const * text;
};

Row const rows[] = {
    {CollectionNames::effects, "Effects"},
    {CollectionNames::effectsAudio, "EffectsAudio"},
    {CollectionNames::colorFilters, "ColorFilters"},
    {CollectionNames::luts, "Luts"},
    {CollectionNames::overlayEffects, "OverlayEffects"},
    {CollectionNames::audioEnhance, "AudioEnhance"},
    {CollectionNames::pipEffects, "PipEffects"},
    {CollectionNames::masks, "Masks"},
    {CollectionNames::shaderEffects, "Shader effects"},
    {CollectionNames::transitions, "Transitions"},
    {CollectionNames::title, "Title"},
    {CollectionNames::intro, "Intro"},
    {CollectionNames::callout, "Callout"},
    {CollectionNames::videos, "Videos"},
    {CollectionNames::backgrounds, "Backgrounds"},
    {CollectionNames::music, "Music"},
    {CollectionNames::sounds, "Sounds"},
    {CollectionNames::frames, "Frames"},
    {CollectionNames::userFiles, "UserFiles"},
    {CollectionNames::sticker, "Sticker"},
    {CollectionNames::specialEffects, "Special effects"},
    {CollectionNames::themes, "Themes"},
    {CollectionNames::themesVideo, "ThemesVideo"},
    {CollectionNames::themesAudio, "ThemesAudio"},
    {CollectionNames::themesTitles, "ThemesTitles"},
    {CollectionNames::wizardBackgrounds, "WizardBackgrounds"},
    {CollectionNames::animations, "Animations"},
    {CollectionNames::panAndZoom, "PanAndZoom"},
    {CollectionNames::packs, "Packs"},
    {CollectionNames::tools, "Tools"},
    {CategoryNames::flyingObjects, "category_flying_objects"},
    {CategoryNames::blur, "category_blur"},
    {CategoryNames::addNoise, "category_add_noise"},
    {CategoryNames::artistic, "category_artistic"},
    {CategoryNames::colorFilters, "category_color_filters"},
    {CategoryNames::mosaic, "category_mosaic"},
    {CategoryNames::lutCold, "category_lut_cold"},
    {CategoryNames::adjust, "category_adjust"},
    {CategoryNames::overlayFrames, "category_overlay_frames"},
    {CategoryNames::overlayShadows, "category_overlay_shadows"},
    {CategoryNames::lutWarm, "category_lut_warm"},
    {CategoryNames::retroMovie, "category_retro_movie"},
    {CategoryNames::vignettes, "Vignettes"},
    {CategoryNames::overlayCyberpunk, "category_overlay_cyberpunk"},
    {CategoryNames::overlayArtsy, "category_overlay_artsy"},
    {CategoryNames::lightLeaks, "category_light_leaks"},
    {motionTrackingName, "MotionTracking"},
    {emptyStreamResource, "RESOURCE##EMPTY_STREAM"},
};

TEST(CollectionNames, NeverChange)
{
    for (Row const & row : rows)
        EXPECT_EQ(row.constant, QLatin1String(row.text));
}

} // namespace
