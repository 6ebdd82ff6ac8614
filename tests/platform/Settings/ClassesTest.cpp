// Every settings class with its members: the setters with their exact parameters, the public data members with their
// exact types, in the order of their declaration.

#include "Classes.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include <Settings/SettingsArtistic.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsColor.h>
#include <Settings/SettingsColorFilter.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsDistortion.h>
#include <Settings/SettingsLight.h>
#include <Settings/SettingsRetro.h>
#include <Settings/SettingsShader.h>
#include <Settings/SettingsTransform.h>

namespace {

using namespace Quoril::Proc;

using Image = std::shared_ptr<ImageHandler const>;
using Geometry = std::array<std::int64_t, 2>;
using FrameFunctors = std::vector<std::function<std::unique_ptr<SettingsEffectMask::FrameMask>(double)>>;

// Colour corrections
SETTINGS_CLASS_TEST(SettingsEffectAutoContrast, )
SETTINGS_CLASS_TEST(SettingsEffectSaturation, )
SETTINGS_CLASS_TEST(SettingsEffectAutoWhiteBalance, FIELD(red, std::uint8_t), FIELD(green, std::uint8_t),
    FIELD(blue, std::uint8_t), FIELD(alpha, std::uint8_t))
SETTINGS_CLASS_TEST(SettingsEffectMagicEnhance2, )
SETTINGS_CLASS_TEST(
    SettingsEffectGIMPColorize, SETTER(Red, float), SETTER(Green, float), SETTER(Blue, float), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(
    SettingsEffectGIMPColorTemperature, SETTER(OriginalTemperature, float), SETTER(IntendedTemperature, float))
SETTINGS_CLASS_TEST(SettingsEffectGIMPColorCorrection, SETTER(Brightness, float), SETTER(Contrast, float))
SETTINGS_CLASS_TEST(SettingsEffectColorBalance, FIELD(saturation, double), FIELD(gamma, double))
SETTINGS_CLASS_TEST(SettingsEffectGIMPHueSaturation, SETTER(Hue, Class::HueRange, float), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectGIMPShadowsHightlights, SETTER(Shadows, float), SETTER(Highlights, float))

// Geometry
SETTINGS_CLASS_TEST(SettingsEffectTransform, FIELD(mode, Class::Mode), FIELD(matrix, Quoril::Core::Matrix3x3))
SETTINGS_CLASS_TEST(SettingsEffectMirror, FIELD(vertical, std::int32_t), FIELD(horizontal, std::int32_t))
SETTINGS_CLASS_TEST(SettingsEffectFixVertVideo, FIELD(geometry, Geometry))

// Composition
SETTINGS_CLASS_TEST(SettingsEffectSubFrame, FIELD(srcLeft, double), FIELD(srcTop, double), FIELD(srcRight, double),
    FIELD(srcBottom, double), FIELD(dstLeft, double), FIELD(dstTop, double), FIELD(dstRight, double),
    FIELD(dstBottom, double))
SETTINGS_CLASS_TEST(SettingsEffectOpacity, FIELD(opacity, double))
SETTINGS_CLASS_TEST(SettingsEffectChromakey, SETTER(Params, double, double, double, double), FIELD(red, std::uint8_t),
    FIELD(green, std::uint8_t), FIELD(blue, std::uint8_t), FIELD(alpha, std::uint8_t))
SETTINGS_CLASS_TEST(SettingsEffectColorBlender, FIELD(blendMode, std::int32_t), SETTER(Intensity, float),
    SETTER(BaseColor, std::optional<ColorF> const &))
SETTINGS_CLASS_TEST(SettingsEffectAlphaInserter, )

// Mask
SETTINGS_CLASS_TEST(SettingsEffectMask, SETTER(FrameFunctors, FrameFunctors),
    SETTER(BackGColor, float, float, float, float), SETTER(FrameColor, float, float, float, float),
    FIELD(kind, std::int32_t), FIELD(pixelSize, double), FIELD(backgroundOpacity, double),
    FIELD(frameParameter, double), FIELD(backgroundSmoothness, double), FIELD(backgroundFill, std::int32_t))

// Shaders and tables
SETTINGS_CLASS_TEST(SettingsEffectLUT, FIELD(intensity, float), SETTER(Table, std::shared_ptr<LUT::LUTTable> const &),
    SETTER(Mode, Class::InterpolateMode))
SETTINGS_CLASS_TEST(SettingsEffectISF, SETTER(Config, std::string const &), SETTER(PixelShader, std::string const &),
    SETTER(VertexShader, std::string const &))
SETTINGS_CLASS_TEST(SettingsEffectTemplateQES, SETTER(Version, int), SETTER(Intensity, float),
    SETTER(Shader, std::string const &), SETTER(AuxImage, Image const &))

// Blur and sharpness
SETTINGS_CLASS_TEST(SettingsEffectBlurGaussian, SETTER(Scale, double))
SETTINGS_CLASS_TEST(SettingsEffectBokehBlur, SETTER(Image, Image const &), SETTER(Intensity, float),
    SETTER(Params, double, double, double))
SETTINGS_CLASS_TEST(SettingsEffectMotionBlur, SETTER(Scale, double))
SETTINGS_CLASS_TEST(SettingsEffectTiltShiftQEM, SETTER(Params, double, double),
    SETTER(UpperLine, double, double, double), SETTER(LowerLine, double, double, double))
SETTINGS_CLASS_TEST(SettingsEffectSharpen, SETTER(Level, double))

// Distortion
SETTINGS_CLASS_TEST(SettingsEffectTwirl, SETTER(Params, double, double, double, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectVertigo, SETTER(Params, double, double), SETTER(Intensity, double))
SETTINGS_CLASS_TEST(SettingsEffectFishEye, SETTER(Deviation, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectLensDistortion, SETTER(Intensity, double), SETTER(Distortion, double),
    SETTER(MemberCount, int), SETTER(Zoom, double))
SETTINGS_CLASS_TEST(
    SettingsEffectCameraShake, SETTER(Settings, double, double, double, double, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectChromaticAberration, SETTER(Intensity, float))

// Artistic filters
SETTINGS_CLASS_TEST(SettingsEffectOilPaint, FIELD(radius, std::int32_t), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(
    SettingsEffectPopArt, SETTER(Intensity, float), SETTER(Params, int, int, double, double, double, double))
SETTINGS_CLASS_TEST(SettingsEffectPosterize, SETTER(ColorsNumber, int), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectFindEdges, SETTER(Params, Class::Type, double, double))
SETTINGS_CLASS_TEST(SettingsEffectHalfTone, SETTER(BackGroundRGB, unsigned char, unsigned char, unsigned char),
    SETTER(DotRGB, unsigned char, unsigned char, unsigned char), SETTER(Param, double, double, double, int))
SETTINGS_CLASS_TEST(SettingsEffectMosaic, FIELD(type, Class::Type), SETTER(Amount, int, int), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectGlassMosaic, SETTER(Params, double, double, double, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectErosion, SETTER(Params, double, Class::Types))
SETTINGS_CLASS_TEST(SettingsEffectDiffuse, SETTER(Params, double, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectStripes, SETTER(Count, int), SETTER(Deep, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectAddNoize, FIELD(type, Class::Type), SETTER(Level, double))

// Retro and glitch
SETTINGS_CLASS_TEST(SettingsEffectRetroArtefacts, FIELD(shake, bool), FIELD(vignetting, bool),
    FIELD(grain, std::uint32_t), FIELD(scratches, std::uint32_t), FIELD(rollerTrack, std::uint32_t),
    SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectRetroColors, SETTER(Intensity, float), FIELD(type, Class::Type))
SETTINGS_CLASS_TEST(SettingsEffectVHS, SETTER(Params, double, double, double, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectTelevision70s, SETTER(Intensity, float), SETTER(StripesWidth, float))
SETTINGS_CLASS_TEST(SettingsEffectGlitchMpeg, SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectGlitchSecurityCam, SETTER(Intensity, float), SETTER(ConstDistortion, float),
    SETTER(RandDistortion, float))
SETTINGS_CLASS_TEST(SettingsEffectFilmStrip, SETTER(Type, Class::Type))

// Colour filters
SETTINGS_CLASS_TEST(SettingsEffectColorBrush, FIELD(angle, std::int32_t), FIELD(size, std::int32_t),
    FIELD(rough, std::int32_t), FIELD(type, Class::Type), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectColorFilter, FIELD(preset, Class::Preset), FIELD(intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectColorMixBurn, SETTER(Strength, double))
SETTINGS_CLASS_TEST(SettingsEffectColorSelect, SETTER(Params, int, double, double, double), SETTER(Intensity, float),
    FIELD(red, std::uint8_t), FIELD(green, std::uint8_t), FIELD(blue, std::uint8_t))
SETTINGS_CLASS_TEST(SettingsEffectColorMixExchange, SETTER(ExchangeColor, unsigned char, unsigned char, unsigned char),
    SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsEffectColorMixField, SETTER(Threshold, double), SETTER(Contrast, double),
    SETTER(FieldColor, unsigned char, unsigned char, unsigned char))
SETTINGS_CLASS_TEST(SettingsEffectInvert, SETTER(Intensity, float))

// Light and particles
SETTINGS_CLASS_TEST(SettingsEffectFlyingObjects, SETTER(Image, Image const &), FIELD(paramsHead, Geometry),
    SETTER(Intensity, float), SETTER(ObjectsCount, std::uint64_t), SETTER(Scale, double),
    FIELD(firstValue, std::int32_t), FIELD(secondValue, std::int32_t), SETTER(MoveDirection, int),
    SETTER(MoveSpeed, double), SETTER(RotationSpeed, double), SETTER(SwingRotationSpeed, double),
    FIELD(thirdValue, std::int32_t))
SETTINGS_CLASS_TEST(SettingsEffectLensFlare, SETTER(Intensity, float), FIELD(preset, Class::Preset))
SETTINGS_CLASS_TEST(SettingsEffectLightLeaks, SETTER(Intensity, float), FIELD(preset, Class::Preset))
SETTINGS_CLASS_TEST(SettingsEffectVignetteFilter, FIELD(firstMode, std::int32_t), FIELD(secondMode, std::int32_t),
    FIELD(thirdMode, std::int32_t), SETTER(Color, unsigned char, unsigned char, unsigned char, unsigned char),
    SETTER(Params, double, double, double, double), SETTER(Intensity, float))

// Audio
SETTINGS_CLASS_TEST(
    SettingsAudioEqualizer, SETTER(Multiband, std::vector<Class::BandEq> const &), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsAudioGate, SETTER(Threshold, float), FIELD(detection, std::int32_t),
    FIELD(link, std::int32_t), SETTER(LevelIn, float), SETTER(Intensity, float), SETTER(Ratio, float),
    SETTER(AttackMs, float), SETTER(ReleaseMs, float), SETTER(Makeup, float), SETTER(Knee, float))
SETTINGS_CLASS_TEST(SettingsAudioCompressor, SETTER(Intensity, float), FIELD(detection, std::int32_t),
    FIELD(link, std::int32_t), SETTER(LevelIn, float), SETTER(Threshold, double), SETTER(Ratio, float),
    SETTER(Attack, float), SETTER(Release, float), SETTER(Makeup, float), SETTER(Knee, float))
SETTINGS_CLASS_TEST(SettingsAudioFlanger, SETTER(Intensity, float), FIELD(shape, std::int32_t),
    FIELD(interpolation, std::int32_t), SETTER(Delay, float), SETTER(Depth, float), SETTER(Regen, float),
    SETTER(Speed, float), SETTER(Phase, float))
SETTINGS_CLASS_TEST(SettingsAudioVibrato, SETTER(Intensity, float), SETTER(Frequency, float))
SETTINGS_CLASS_TEST(SettingsAudioDistortion, SETTER(Intensity, float), FIELD(type, std::int32_t), SETTER(Tone, float),
    SETTER(Boost, float))
SETTINGS_CLASS_TEST(SettingsAudioReverberationImpulseResponse, SETTER(ReverberationTime, double),
    SETTER(Delay, std::int64_t), SETTER(SlpfFrequency, int), FIELD(modeA, std::int32_t), FIELD(modeB, std::int32_t),
    FIELD(modeC, std::int32_t), SETTER(DryGain, double), SETTER(WetGain, double))
SETTINGS_CLASS_TEST(SettingsAudioPitch, SETTER(Pitch, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsAudioRadio, SETTER(EqSettings, SettingsAudioEqualizer const &),
    SETTER(CracklePrecision, int), SETTER(NoiseLevel, double), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsAudioRobot, SETTER(Level, double), SETTER(PitchSettings, SettingsAudioPitch const &),
    SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsAudioEcho, SETTER(GainInOut, double, double),
    SETTER(Echos, std::vector<Class::Echo> const &), SETTER(Intensity, float))
SETTINGS_CLASS_TEST(SettingsAudioNoiseSuppress, SETTER(Level, int))
SETTINGS_CLASS_TEST(SettingsFilterResample, FIELD(channelCount, std::int32_t))

TEST(SettingsClasses, EachHasItsTable)
{
    std::set<std::string> tested;
    auto const & program = *testing::UnitTest::GetInstance();
    for (int index = 0; index < program.total_test_suite_count(); ++index) {
        tested.insert(program.GetTestSuite(index)->name());
    }

    std::size_t found = 0;
    for (auto const & entry : std::filesystem::directory_iterator(SETTINGS_HEADERS)) {
        std::ifstream file(entry.path());
        std::string line;
        while (std::getline(file, line)) {
            std::istringstream words(line);
            std::string keyword;
            std::string macro;
            std::string name;
            std::string modifier;
            if (words >> keyword >> macro >> name >> modifier && keyword == "class" && macro == "SETTINGS_EXPORT" &&
                modifier == "final") {
                EXPECT_EQ(tested.count(name), 1u) << name << " has no row in this file";
                ++found;
            }
        }
    }
    EXPECT_GE(found, 60u) << "the headers were not found in " SETTINGS_HEADERS;
}

} // namespace
