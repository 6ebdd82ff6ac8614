/// @file
/// What the conversions of all families share, and their declarations, one line an effect.
///
/// A conversion fills the settings object that its row in the factory's tables names. Numbers are passed as they are
/// unless the engine wants them narrower; what a field means to the engine is told with the effect.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <typeinfo>

#include <EditorModel/EffectFactory.h>
#include <effects/Artistic.h>
#include <effects/Blur.h>
#include <effects/ColorFilters.h>
#include <effects/ColorMixField.h>
#include <effects/Distortion.h>
#include <effects/Effects.h>
#include <effects/Light.h>
#include <effects/Mirroring.h>
#include <effects/Retro.h>
#include <effects/Voice.h>
#include <Settings/SettingsArtistic.h>
#include <Settings/SettingsAudio.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsColor.h>
#include <Settings/SettingsColorFilter.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsDistortion.h>
#include <Settings/SettingsLight.h>
#include <Settings/SettingsMask.h>
#include <Settings/SettingsRetro.h>
#include <Settings/SettingsShader.h>
#include <Settings/SettingsTransform.h>

namespace Effect::Factory {

namespace Proc = Quoril::Proc;

struct VideoContext; // collection/Effects/FactoryCaches.h

/// Codes that the engine receives with the settings.
namespace Stage {
inline constexpr std::uint8_t audio = 1;
inline constexpr std::uint8_t openGl = 2;
inline constexpr std::uint8_t video = 18;
inline constexpr std::uint8_t oneButton = 19; ///< one-button colour corrections
} // namespace Stage

/// A record of one settings object.
EffectSettings makeEffectSettings(
    std::unique_ptr<Proc::Settings> settings, std::uint8_t stageCode, std::string implementation);

/// Throws a `std::bad_cast` that names the effect's identifier, the class that it belongs to, and the effect's class.
[[noreturn]] void throwWrongClass(Object const & effect, std::type_info const & expected);

/// The effect as an object of the class that its identifier belongs to; throws as `throwWrongClass` for another class.
template <class Effect> Effect const & castTo(Object const & object)
{
    // Nearly every object is of the very class that is asked for, which is seen at a glance.
    if (typeid(object) == typeid(Effect))
        return static_cast<Effect const &>(object);
    if (auto const * const cast = dynamic_cast<Effect const *>(&object))
        return *cast;
    throwWrongClass(object, typeid(Effect));
}

/// The intensity, as most settings classes take it.
inline float floatIntensity(Object const & effect)
{
    return static_cast<float>(effect.intensity);
}

/// A packed colour's channels, 0 to 255.
struct Channels
{
    std::uint8_t red, green, blue;
};

/// Splits `0xAARRGGBB`; the alpha is dropped.
constexpr Channels channels(std::uint32_t color)
{
    return {static_cast<std::uint8_t>(color >> 16), static_cast<std::uint8_t>(color >> 8),
        static_cast<std::uint8_t>(color)};
}

/// Whether an enumeration is one of the first `count`.
template <class Enum> constexpr bool isKnown(Enum value, int count)
{
    int const number = static_cast<int>(value);
    return number >= 0 && number < count;
}

/// Copies an enumeration to the engine's of the same numbers, if it is one of the first `count`; else that one stays.
template <class Enum, class EngineEnum> constexpr void copyKnown(Enum value, int count, EngineEnum & target)
{
    if (isKnown(value, count))
        target = static_cast<EngineEnum>(value);
}

/// An enumeration's number when it is one of the first `count`, else `fallback`.
template <class Enum> constexpr int knownValue(Enum value, int count, int fallback = 0)
{
    return isKnown(value, count) ? static_cast<int>(value) : fallback;
}

/// A number truncated to an integer, or the nearest integer that there is. What is no number counts as the lowest.
constexpr int saturatedInt(double number)
{
    using Limits = std::numeric_limits<int>;
    if (number >= Limits::max())
        return Limits::max();
    return number > Limits::min() ? static_cast<int>(number) : Limits::min();
}

/// A preset's row in a table of presets; null when the table has none.
template <class Row, std::size_t size, class Enum> constexpr Row const * knownRow(Row const (&table)[size], Enum preset)
{
    int const index = knownValue(preset, static_cast<int>(size), -1);
    return index < 0 ? nullptr : table + index;
}

/// A preset's row in a table of presets; the first or the last for a preset before or beyond them.
template <class Row, std::size_t size, class Enum>
constexpr Row const & nearestRow(Row const (&table)[size], Enum preset)
{
    return table[std::clamp(static_cast<int>(preset), 0, static_cast<int>(size) - 1)];
}

// Colour correction.
void fill(Proc::SettingsEffectAutoWhiteBalance &, WhiteBalance const &, VideoParams const &);
EffectSettings convertManualEnhance(Object const &, VideoParams const &);

// Geometry and mirroring.
void fill(Proc::SettingsEffectTransform &, Crop const &, VideoParams const &);
void fill(Proc::SettingsEffectTransform &, Transpose const &, VideoParams const &);
void fill(Proc::SettingsEffectFixVertVideo &, FixVertVideo const &, VideoParams const &);
void fill(Proc::SettingsEffectTransform &, Flip const &, VideoParams const &);
void fill(Proc::SettingsEffectMirror &, Mirror const &, VideoParams const &);

// Composition.
EffectSettings convertPictureInPicture(Object const &, VideoParams const &);
void fill(Proc::SettingsEffectSubFrame &, SideBySide const &, VideoParams const &);
void fill(Proc::SettingsEffectOpacity &, Opacity const &, VideoParams const &);
void fill(Proc::SettingsEffectChromakey &, ChromaKey const &, VideoParams const &);
void fill(Proc::SettingsEffectColorBlender &, Overlay const &, VideoParams const &);
void fill(Proc::SettingsEffectColorBlender &, ColorBlending const &, VideoParams const &);

// Mask.
EffectSettings convertMask(Object const &, VideoParams const &);

// Lookup tables and shaders.
void fill(Proc::SettingsEffectTemplateQES &, ExternalShader const &, VideoParams const &);
void fill(Proc::SettingsEffectLUT &, Lut const &, VideoContext const &);
void fill(Proc::SettingsEffectISF &, ShaderISF const &, VideoContext const &);

// Blur and sharpness.
void fill(Proc::SettingsEffectBlurGaussian &, Blur const &, VideoParams const &);
void fill(Proc::SettingsEffectBokehBlur &, BokehBlur const &, VideoContext const &);
void fill(Proc::SettingsEffectMotionBlur &, MotionBlur const &, VideoParams const &);
void fill(Proc::SettingsEffectTiltShiftQEM &, TiltShift const &, VideoParams const &);
void fill(Proc::SettingsEffectSharpen &, Sharpen const &, VideoParams const &);

// Distortion.
void fill(Proc::SettingsEffectTwirl &, Twirl const &, VideoParams const &);
void fill(Proc::SettingsEffectVertigo &, Vertigo const &, VideoParams const &);
void fill(Proc::SettingsEffectFishEye &, FishEye const &, VideoParams const &);
void fill(Proc::SettingsEffectLensDistortion &, LensDistortion const &, VideoParams const &);
void fill(Proc::SettingsEffectCameraShake &, CameraShake const &, VideoParams const &);
void fill(Proc::SettingsEffectChromaticAberration &, ChromaticAberration const &, VideoParams const &);

// Artistic filters.
void fill(Proc::SettingsEffectOilPaint &, OilPaint const &, VideoParams const &);
void fill(Proc::SettingsEffectPopArt &, PopArt const &, VideoParams const &);
void fill(Proc::SettingsEffectPosterize &, Posterize const &, VideoParams const &);
void fill(Proc::SettingsEffectFindEdges &, FindEdges const &, VideoParams const &);
void fill(Proc::SettingsEffectHalfTone &, HalfTone const &, VideoParams const &);
void fill(Proc::SettingsEffectMosaic &, Mosaic const &, VideoParams const &);
void fill(Proc::SettingsEffectGlassMosaic &, GlassMosaic const &, VideoParams const &);
void fill(Proc::SettingsEffectErosion &, Erosion const &, VideoParams const &);
void fill(Proc::SettingsEffectDiffuse &, Diffuse const &, VideoParams const &);
void fill(Proc::SettingsEffectStripes &, Stripes const &, VideoParams const &);
void fill(Proc::SettingsEffectAddNoize &, AddNoize const &, VideoParams const &);

// Retro and glitch.
void fill(Proc::SettingsEffectRetroArtefacts &, RetroArtefacts const &, VideoParams const &);
void fill(Proc::SettingsEffectRetroColors &, RetroColors const &, VideoParams const &);
void fill(Proc::SettingsEffectVHS &, VHS const &, VideoParams const &);
void fill(Proc::SettingsEffectTelevision70s &, Television70s const &, VideoParams const &);
void fill(Proc::SettingsEffectGlitchMpeg &, GlitchMpeg const &, VideoParams const &);
void fill(Proc::SettingsEffectGlitchSecurityCam &, GlitchSecurityCam const &, VideoParams const &);
void fill(Proc::SettingsEffectFilmStrip &, FilmStrip const &, VideoParams const &);

// Colour filters.
void fill(Proc::SettingsEffectColorBrush &, ColorBrush const &, VideoParams const &);
void fill(Proc::SettingsEffectColorFilter &, ColorFilter const &, VideoParams const &);
void fill(Proc::SettingsEffectColorMixBurn &, ColorMixBurn const &, VideoParams const &);
void fill(Proc::SettingsEffectColorSelect &, ColorSelect const &, VideoParams const &);
void fill(Proc::SettingsEffectColorMixExchange &, ColorMixExchange const &, VideoParams const &);
void fill(Proc::SettingsEffectColorMixField &, ColorMixField const &, VideoParams const &);
void fill(Proc::SettingsEffectInvert &, Invert const &, VideoParams const &);

// Light and particles.
void fill(Proc::SettingsEffectFlyingObjects &, FlyingObjects const &, VideoContext const &);
void fill(Proc::SettingsEffectLensFlare &, LensFlare const &, VideoParams const &);
void fill(Proc::SettingsEffectLightLeaks &, LightLeaks const &, VideoParams const &);
void fill(Proc::SettingsEffectVignetteFilter &, VignetteFilter const &, VideoParams const &);

// Equalizer.
void fill(Proc::SettingsAudioEqualizer &, AudioEqualizer const &, AudioParams const &);

// Dynamics.
void fill(Proc::SettingsAudioGate &, AudioNoiseGate const &, AudioParams const &);
void fill(Proc::SettingsAudioCompressor &, AudioCompressor const &, AudioParams const &);

// Modulation and space.
void fill(Proc::SettingsAudioDistortion &, AudioDistortion const &, AudioParams const &);
void fill(Proc::SettingsAudioReverberationImpulseResponse &, AudioReverb const &, AudioParams const &);
void fill(Proc::SettingsAudioFlanger &, AudioFlanger const &, AudioParams const &);
void fill(Proc::SettingsAudioVibrato &, AudioVibrato const &, AudioParams const &);

// Voice.
void fill(Proc::SettingsAudioEqualizer &, AudioPhone const &, AudioParams const &);
void fill(Proc::SettingsAudioEqualizer &, AudioMuffle const &, AudioParams const &);
void fill(Proc::SettingsAudioRadio &, AudioRadio const &, AudioParams const &);
void fill(Proc::SettingsAudioEcho &, AudioEcho const &, AudioParams const &);
void fill(Proc::SettingsAudioPitch &, AudioPitch const &, AudioParams const &);
void fill(Proc::SettingsAudioRobot &, AudioRobot const &, AudioParams const &);

// Clean-up.
void fill(Proc::SettingsAudioNoiseSuppress &, AudioNoiseSuppress const &, AudioParams const &);
void fill(Proc::SettingsFilterResample &, AudioMonoChannel const &, AudioParams const &);

} // namespace Effect::Factory
