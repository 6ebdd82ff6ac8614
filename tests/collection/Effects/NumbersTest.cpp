// Every number of every effect, on its way to the settings: at the ends of its range, where it is no number, and where
// one rounding differs from another.
//
// These tests run twice, the second time with settings that start with other values than zero (OtherEngine.h), which
// distinguishes a setting that is left alone from one that is set to 0.

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>
#include <EditorSerialization/Registry.h>
#include <effects/Artistic.h>
#include <effects/Base.h>
#include <effects/Blur.h>
#include <effects/CleanUp.h>
#include <effects/ColorCorrection.h>
#include <effects/ColorFilters.h>
#include <effects/Composition.h>
#include <effects/Distortion.h>
#include <effects/Dynamics.h>
#include <effects/Equalizer.h>
#include <effects/Geometry.h>
#include <effects/Light.h>
#include <effects/Mask.h>
#include <effects/Mirroring.h>
#include <effects/Modulation.h>
#include <effects/Retro.h>
#include <effects/Schema.h>
#include <effects/Shaders.h>
#include <effects/Voice.h>
#include <Settings/SettingsTransform.h>
#include <Settings/Trace.h>
#include <support/Documents.h>
#include <support/Images.h>
#include <support/Resources.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Quoril::Proc::Value;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();
constexpr std::int64_t least = std::numeric_limits<std::int32_t>::min();
constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
constexpr std::int64_t leastLong = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t mostLong = std::numeric_limits<std::int64_t>::max();

/// No settings object was given anything there.
struct Absent
{};
/// The data member is as the engine's settings start.
struct Left
{};
constexpr Absent absent;
constexpr Left left;

using Number = std::variant<std::int64_t, double>;
using Passed = std::variant<std::int64_t, double, Absent, Left>;

/// What an effect holds, and what its settings are given.
struct Step
{
    Number held;
    Passed passed;
};
using Steps = std::vector<Step>;

/// Passed as they are.
Steps const whole{{0.1, 0.1}, {1 + 0x1p-52, 1 + 0x1p-52}, {largest, largest}, {-largest, -largest},
    {infinity, infinity}, {-infinity, -infinity}, {nan, nan}, {smallest, smallest}, {-smallest, -smallest},
    {-0.0, -0.0}};

/// Narrowed to single precision: to the nearest, and half-way to the even one.
Steps const narrowed{
    {0.1, 0.100000001490116119384765625},
    {1 + 0x1p-24, 1.0},
    {1 + 0x1p-24 + 0x1p-52, 1 + 0x1p-23},
    {-1 - 0x1p-24 - 0x1p-52, -1 - 0x1p-23},
    {0x1.fffffefffffffp127, 0x1.fffffep127}, // the largest that does not overflow
    {0x1.ffffffp127, infinity},
    {largest, infinity},
    {-largest, -infinity},
    {infinity, infinity},
    {-infinity, -infinity},
    {nan, nan},
    {0x1p-149, 0x1p-149}, // the smallest there is
    {0x1.0000000000001p-150, 0x1p-149},
    {-0x1p-150, -0.0},
    {smallest, 0.0},
    {-0.0, -0.0},
};

Steps const integers{{least, least}, {-1, -1}, {0, 0}, {1, 1}, {most, most}};
Steps const unsignedIntegers{{0, 0}, {1, 1}, {0x80000000, 0x80000000}, {0xFFFFFFFF, 0xFFFFFFFF}};

/// Integers to single precision without a double between: of 2^60 + 2^36 + 1 the double is half-way between two floats.
Steps const narrowedIntegers{{leastLong, -0x1p63}, {-3, -3.0}, {0, 0.0}, {(1 << 24) + 1, 0x1p24},
    {(1 << 24) + 3, 0x1p24 + 4}, {(std::int64_t(1) << 60) + (std::int64_t(1) << 36) + 1, 0x1p60 + 0x1p37},
    {mostLong, 0x1p63}};

/// Times of a dynamics processor, which last 0.01 ms at least and go through a double to single precision.
Steps const raised{{leastLong, 0.00999999977648258209228515625}, {-1, 0.00999999977648258209228515625},
    {0, 0.00999999977648258209228515625}, {1, 1.0}, {(std::int64_t(1) << 60) + (std::int64_t(1) << 36) + 1, 0x1p60},
    {mostLong, 0x1p63}};

/// Levels as ratios in single precision; 10^40 and 10^-50 are beyond it.
Steps const levels{{-20.0, 0.100000001490116119384765625}, {20.0, 10.0}, {0.0, 1.0}, {800.0, infinity}, {-1000.0, 0.0},
    {infinity, infinity}, {-infinity, 0.0}, {nan, nan}};

/// Of an enumeration the first `count` are passed, and the others as `unknown`.
Steps enumeration(std::int64_t count, Passed unknown)
{
    Steps steps{{least, unknown}, {-1, unknown}, {count, unknown}, {count + 256, unknown}, {most, unknown}};
    for (std::int64_t number = 0; number < count; ++number)
        steps.push_back({number, number});
    return steps;
}

/// Per cent and 256ths as fractions. The product with 0.01 is another double for 35 and 41; single precision cannot
/// hold the fractions of the ends.
Steps const percent{{35, 0.35}, {41, 0.41}, {-250, -2.5}, {0, 0.0}, {least, -21474836.48}, {most, 21474836.47}};
Steps const of256{{1, 0.00390625}, {-256, -1.0}, {0, 0.0}, {least, -8388608.0}, {most, 8388607.99609375}};

/// A colour's channels. No two bytes of a colour here are alike.
Steps const red{{0x00010203, 0x01}, {0xFF7F8081, 0x7F}, {0x80FF0102, 0xFF}};
Steps const green{{0x00010203, 0x02}, {0xFF7F8081, 0x80}, {0x8001FF02, 0xFF}};
Steps const blue{{0x00010203, 0x03}, {0xFF7F8081, 0x81}, {0x800102FF, 0xFF}};

/// An effect of which one field holds the number.
using Make = std::function<std::shared_ptr<Object>(Number)>;

// What an effect needs besides for its numbers to be passed.
void prepare(Object &) {}
void prepare(Lut & effect)
{
    effect = Lut(QStringLiteral("table"));
}
void prepare(ExternalShader & effect)
{
    effect.supportsIntensity = true;
}
void prepare(Mask & effect)
{
    effect.addFrame(FrameHighlight());
}
void prepare(AudioMuffle & effect)
{
    effect.mean = 1024; // the peak is the band of index 5
}
void prepare(AudioRadio & effect)
{
    effect.gainUp = 10;
    effect.gainDown = 50;
    effect.lBound = 100;
    effect.rBound = 1500;
}

template <class Class, class Owner, class T> Make making(T Owner::*field)
{
    return [field](Number number) {
        auto const effect = std::make_shared<Class>();
        prepare(*effect);
        std::visit(
            [&](auto held) {
                if constexpr (std::is_same_v<T, Decibel>)
                    (*effect).*field = Decibel::fromDbLevel(static_cast<double>(held));
                else
                    (*effect).*field = static_cast<T>(held);
            },
            number);
        return effect;
    };
}

struct Row
{
    char const * className;
    char const * key;
    Make make;
    char const * place; ///< a setter or a public data member
    /// The way from the place to the number: the argument's index, and on into lists. Empty for a data member.
    std::vector<std::size_t> path;
    Steps steps;
};

#define OF(Class, field) Class::NameInArchive(), #field, making<Class>(&Class::field)

std::vector<Row> colorCorrection()
{
    return {
        {OF(WhiteBalance, color), "red", {}, red},
        {OF(WhiteBalance, color), "green", {}, green},
        {OF(WhiteBalance, color), "blue", {}, blue},
        {OF(WhiteBalance, color), "alpha", {}, {{0x00010203, 255}, {0x80010203, 255}}},
        // A double product with 0.45 as single precision has it, narrowed. Neither a product in single precision nor
        // one with 0.45 itself gives the same of 0.15 and 0.23.
        {OF(ManualEnhance, tint), "SetIntensity", {0},
            {{0.15, 0.0674999952316284179688}, {-0.23, 0.103499993681907653809}, {1.0, 0.449999988079071044922},
                {2e-12, 8.99999963877712306e-13}, {1e-12, absent}, {-1e-12, absent}, {smallest, absent}, {-0.0, absent},
                {0x1p128, 0.449999988079071044922 * 0x1p128}, {largest, infinity}, {-infinity, infinity}, {nan, nan}}},
        {OF(ManualEnhance, tint), "SetGreen", {0},
            {{0.5, 1.0}, {-0.5, 0.0}, {infinity, 1.0}, {-infinity, 0.0}, {nan, 0.0}}},
        {OF(ManualEnhance, tint), "SetRed", {0},
            {{0.5, 0.0}, {-0.5, 1.0}, {infinity, 0.0}, {-infinity, 1.0}, {nan, 1.0}}},
        {OF(ManualEnhance, tint), "SetBlue", {0},
            {{0.5, 0.0}, {-0.5, 1.0}, {infinity, 0.0}, {-infinity, 1.0}, {nan, 1.0}}},
        // All in single precision: 6500 - 3800 * 0.502 is 4592.4, and the float below it is 4592.39990234375.
        {OF(ManualEnhance, temperature), "SetOriginalTemperature", {0},
            {{1.0, 2700.0}, {0.502, 4592.400390625}, {0.286, 5413.2001953125}, {2e-12, 6500.0}, {1e-12, absent},
                {2.0, -1100.0}, {largest, -infinity}, {infinity, -infinity}, {-0.5, 6500.0}, {-infinity, 6500.0},
                {nan, 6500.0}}},
        {OF(ManualEnhance, temperature), "SetIntendedTemperature", {0},
            {{-1.0, 2500.0}, {-0.5009, 4496.400390625}, {-0.2517, 5493.2001953125}, {-2e-12, 6500.0}, {-1e-12, absent},
                {-2.0, -1500.0}, {-largest, -infinity}, {-infinity, -infinity}, {0.5, 6500.0}, {infinity, 6500.0},
                {nan, nan}}},
        {OF(ManualEnhance, brightness), "SetBrightness", {0},
            {{0.1, 0.100000001490116119384765625}, {-2.5, -2.5}, {2e-12, 1.9999999920083944e-12}, {1e-12, absent},
                {largest, infinity}, {-infinity, -infinity}, {nan, nan}}},
        {OF(ManualEnhance, brightness), "SetContrast", {0}, {{0.5, 0.0}}},
        // 0.39 * 0.13 is 0.0507, and single precision would make 0.050699998 of it.
        {OF(ManualEnhance, contrast), "SetContrast", {0},
            {{0.13, 0.0507000014185905456543}, {-0.26, -0.101400002837181091309}, {1.0, 0.389999985694885253906},
                {2e-12, 7.79999979536039056e-13}, {1e-12, absent}, {largest, infinity}, {-infinity, -infinity},
                {nan, nan}}},
        {OF(ManualEnhance, contrast), "SetBrightness", {0}, {{0.5, 0.0}}},
        {OF(ManualEnhance, saturation), "saturation", {},
            {{-1.0, 0.0}, {-0.08, 0.92}, {-0.3, 0.7}, {0.08, 1.16}, {1.0, 3.0}, {-2.0, -1.0}, {1e-12, absent},
                {largest, infinity}, {-largest, -largest}, {-infinity, -infinity}, {infinity, infinity}, {nan, nan}}},
        {OF(ManualEnhance, saturation), "gamma", {}, {{0.5, 1.0}}},
        // 1 / 0.9625 of the sum as it is rounded, which 1 - 0.05 * 0.75 is not.
        {OF(ManualEnhance, gamma), "gamma", {},
            {{-0.05, 1.038961038961039}, {-0.3, 1.2903225806451615}, {-1.0, 4.0}, {1.0, 0.5}, {0.3, 0.7692307692307692},
                {-2.0, -2.0}, {-1e-12, absent}, {largest, 1 / largest}, {infinity, 0.0}, {-infinity, -0.0},
                {nan, nan}}},
        {OF(ManualEnhance, gamma), "saturation", {}, {{0.5, 1.0}}},
        // 180 * 0.27 is 48.6, and single precision would make 48.600002 of it.
        {OF(ManualEnhance, hue), "SetHue", {1},
            {{0.15, 27.0}, {0.27, 48.599998474121094}, {-0.49, -88.19999694824219}, {2e-12, 3.60000002030957944e-10},
                {1e-12, absent}, {largest, infinity}, {-infinity, -infinity}, {nan, nan}}},
        {OF(ManualEnhance, hue), "SetHue", {0}, {{0.5, 0}, {nan, 0}}},
        {OF(ManualEnhance, hue), "SetIntensity", {0}, {{0.5, 0.699999988079071044922}, {nan, 0.699999988079071044922}}},
        {OF(ManualEnhance, shadows), "SetShadows", {0},
            {{0.13, 9.100000381469727}, {0.17, 11.899999618530273}, {-0.15, -15.0}, {-0.27, -27.0}, {1e-12, absent},
                {largest, infinity}, {-infinity, -infinity}, {nan, nan}}},
        {OF(ManualEnhance, shadows), "SetHighlights", {0}, {{0.5, 0.0}, {-0.5, 0.0}}},
        {OF(ManualEnhance, highlights), "SetHighlights", {0},
            {{0.15, 15.0}, {0.27, 27.0}, {-0.01, -0.800000011920929}, {-0.03, -2.4000000953674316}, {1e-12, absent},
                {largest, infinity}, {-infinity, -infinity}, {nan, nan}}},
        {OF(ManualEnhance, highlights), "SetShadows", {0}, {{0.5, 0.0}, {-0.5, 0.0}}},
    };
}

std::vector<Row> geometry()
{
    // What comes of the other angles is near the sine and cosine at best, and is tested as such.
    return {
        {OF(Transpose, angle), "matrix", {0}, {{0, 1.0}}},
        {OF(Transpose, angle), "mode", {}, {{0, 1}, {most, 1}}},
        {OF(Mirror, vertical), "vertical", {}, enumeration(3, left)},
        {OF(Mirror, vertical), "horizontal", {}, {{2, 0}, {3, 0}}},
        {OF(Mirror, horizontal), "horizontal", {}, enumeration(3, left)},
        {OF(Mirror, horizontal), "vertical", {}, {{2, 0}, {3, 0}}},
    };
}

Steps const blendModes{{0, 11}, {1, 6}, {2, 24}, {3, 8}, {4, 9}, {5, 0}, {6, 7}, {7, 18}, {8, 2}, {9, 1}, {10, 3},
    {11, 13}, {12, 12}, {13, 19}, {14, 11}, {-1, 11}, {256, 11}, {least, 11}, {most, 11}};

std::vector<Row> composition()
{
    return {
        {OF(Opacity, opacity), "opacity", {}, whole},
        {OF(ChromaKey, hueTolerance), "SetParams", {0}, {{least, -2147483648.0}, {0, 0.0}, {most, 2147483647.0}}},
        {OF(ChromaKey, noiseLevel), "SetParams", {1}, of256},
        {OF(ChromaKey, harshness), "SetParams", {2}, percent},
        {OF(ChromaKey, transparency), "SetParams", {3}, percent},
        {OF(ChromaKey, color), "red", {}, red},
        {OF(ChromaKey, color), "green", {}, green},
        {OF(ChromaKey, color), "blue", {}, blue},
        {OF(ChromaKey, color), "alpha", {}, {{0x00010203, left}, {0xFF7F8081, left}}},
        {OF(Overlay, mode), "blendMode", {}, blendModes},
        {OF(Overlay, mode), "SetBaseColor", {0}, {{0, absent}, {14, absent}}},
        {OF(Overlay, intensity), "SetIntensity", {0}, narrowed},
        {OF(ColorBlending, mode), "blendMode", {}, blendModes},
        {OF(ColorBlending, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> mask()
{
    return {
        {OF(Mask, backgroundFill), "backgroundFill", {}, enumeration(2, 0)},
        {OF(Mask, backgroundOpacity), "backgroundOpacity", {}, whole},
        {OF(Mask, backgroundSmoothness), "backgroundSmoothness", {}, whole},
    };
}

std::vector<Row> shaders()
{
    return {
        {OF(Lut, intensity), "intensity", {}, narrowed},
        {OF(ExternalShader, intensity), "SetIntensity", {0}, narrowed},
        {OF(ExternalShader, apiVersion), "SetVersion", {0}, integers},
    };
}

std::vector<Row> blur()
{
    return {
        // The product with 0.05 is another double for 3 and 6.
        {OF(Blur, intensity), "SetScale", {0},
            {{3.0, 0.15}, {6.0, 0.3}, {-0.0, -0.0}, {smallest, 0.0}, {largest, largest / 20}, {infinity, infinity},
                {-infinity, -infinity}, {nan, nan}}},
        {OF(MotionBlur, intensity), "SetScale", {0}, whole},
        {OF(Sharpen, intensity), "SetLevel", {0}, whole},
        {OF(BokehBlur, intensity), "SetIntensity", {0}, narrowed},
        // The width identifies the mask, 1 for "bang.png" to 9 for "star.png".
        {OF(BokehBlur, preset), "SetImage", {0, 0},
            {{least, 1}, {-1, 1}, {0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {7, 8}, {8, 9}, {9, 9},
                {264, 9}, {most, 9}}},
        {OF(BokehBlur, preset), "SetParams", {0}, {{-1, 0.045}, {9, 0.045}}},
        {OF(TiltShift, intensity), "SetParams", {1}, whole},
        {OF(TiltShift, smns), "SetParams", {0}, whole},
        {OF(TiltShift, a1), "SetUpperLine", {0}, whole},
        {OF(TiltShift, b1), "SetUpperLine", {1}, whole},
        {OF(TiltShift, c1), "SetUpperLine", {2}, whole},
        {OF(TiltShift, a2), "SetLowerLine", {0}, whole},
        {OF(TiltShift, b2), "SetLowerLine", {1}, whole},
        {OF(TiltShift, c2), "SetLowerLine", {2}, whole},
    };
}

std::vector<Row> distortion()
{
    return {
        {OF(Twirl, startRotate), "SetParams", {0}, whole},
        {OF(Twirl, speedRotate), "SetParams", {1}, whole},
        {OF(Twirl, startTwirl), "SetParams", {2}, whole},
        {OF(Twirl, speedTwirl), "SetParams", {3}, whole},
        {OF(Twirl, intensity), "SetIntensity", {0}, narrowed},
        {OF(Vertigo, scale), "SetParams", {0}, whole},
        {OF(Vertigo, speed), "SetParams", {1}, whole},
        {OF(Vertigo, intensity), "SetIntensity", {0}, whole},
        {OF(FishEye, deviation), "SetDeviation", {0}, whole},
        {OF(FishEye, intensity), "SetIntensity", {0}, narrowed},
        {OF(LensDistortion, zoom), "SetZoom", {0}, whole},
        {OF(LensDistortion, distortion), "SetDistortion", {0}, whole},
        {OF(LensDistortion, memberCount), "SetMemberCount", {0}, integers},
        {OF(LensDistortion, intensity), "SetIntensity", {0}, whole},
        {OF(CameraShake, shuft_x), "SetSettings", {0}, whole},
        {OF(CameraShake, shuft_y), "SetSettings", {1}, whole},
        {OF(CameraShake, rotate), "SetSettings", {2}, whole},
        {OF(CameraShake, frequency), "SetSettings", {3}, whole},
        {OF(CameraShake, persistence), "SetSettings", {4}, whole},
        {OF(CameraShake, intensity), "SetIntensity", {0}, narrowed},
        {OF(ChromaticAberration, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> artistic()
{
    return {
        {OF(OilPaint, radius), "radius", {}, integers},
        {OF(OilPaint, intensity), "SetIntensity", {0}, narrowed},
        {OF(PopArt, preset), "SetParams", {0},
            {{0, 2}, {1, 3}, {2, 4}, {3, 5}, {4, absent}, {256, absent}, {-1, absent}, {least, absent},
                {most, absent}}},
        {OF(PopArt, intensity), "SetIntensity", {0}, narrowed},
        {OF(Posterize, colorsNumber), "SetColorsNumber", {0}, integers},
        {OF(Posterize, intensity), "SetIntensity", {0}, narrowed},
        {OF(FindEdges, type), "SetParams", {0}, enumeration(2, absent)},
        {OF(FindEdges, intensity), "SetParams", {1}, whole},
        {OF(FindEdges, sensibility), "SetParams", {2}, whole},
        {OF(HalfTone, bkgnd), "SetBackGroundRGB", {0}, red},
        {OF(HalfTone, bkgnd), "SetBackGroundRGB", {1}, green},
        {OF(HalfTone, bkgnd), "SetBackGroundRGB", {2}, blue},
        {OF(HalfTone, bkgnd), "SetParam", {0}, {{0xFF000000, 0.0}}},
        {OF(HalfTone, dtclr), "SetDotRGB", {0}, red},
        {OF(HalfTone, dtclr), "SetDotRGB", {1}, green},
        {OF(HalfTone, dtclr), "SetDotRGB", {2}, blue},
        // 33 and 37 divided by 255, of which the products with 1 / 255 are other doubles.
        {OF(HalfTone, dtclr), "SetParam", {0},
            {{0x00FFFFFF, 0.0}, {0x21FFFFFF, 0.12941176470588237}, {0x25FFFFFF, 0.1450980392156863},
                {0x80000000, 0.5019607843137255}, {0xFF000000, 1.0}}},
        {OF(HalfTone, intensity), "SetParam", {1}, whole},
        {OF(HalfTone, scale), "SetParam", {2}, whole},
        {OF(HalfTone, angle), "SetParam", {3}, integers},
        {OF(Mosaic, type), "type", {}, enumeration(2, left)},
        {OF(Mosaic, amountVer), "SetAmount", {0}, integers},
        {OF(Mosaic, amountHor), "SetAmount", {1}, integers},
        {OF(Mosaic, intensity), "SetIntensity", {0}, narrowed},
        {OF(GlassMosaic, angle), "SetParams", {0}, whole},
        {OF(GlassMosaic, curve), "SetParams", {1}, whole},
        {OF(GlassMosaic, repeatsh), "SetParams", {2}, whole},
        {OF(GlassMosaic, repeatsv), "SetParams", {3}, whole},
        {OF(GlassMosaic, intensity), "SetIntensity", {0}, narrowed},
        {OF(Erosion, type), "SetParams", {1}, enumeration(2, absent)},
        {OF(Erosion, intensity), "SetParams", {0}, whole},
        {OF(Diffuse, level), "SetParams", {0}, whole},
        {OF(Diffuse, prob), "SetParams", {1}, whole},
        {OF(Diffuse, intensity), "SetIntensity", {0}, narrowed},
        {OF(Stripes, count), "SetCount", {0}, integers},
        {OF(Stripes, deep), "SetDeep", {0}, whole},
        {OF(Stripes, intensity), "SetIntensity", {0}, narrowed},
        {OF(AddNoize, type), "type", {}, enumeration(2, left)},
        {OF(AddNoize, intensity), "SetLevel", {0}, whole},
    };
}

std::vector<Row> retro()
{
    return {
        {OF(RetroArtefacts, grain), "grain", {}, unsignedIntegers},
        {OF(RetroArtefacts, scratches), "scratches", {}, unsignedIntegers},
        {OF(RetroArtefacts, rollerTrack), "rollerTrack", {}, unsignedIntegers},
        {OF(RetroArtefacts, intensity), "SetIntensity", {0}, narrowed},
        {OF(RetroColors, type), "type", {}, enumeration(4, left)},
        {OF(RetroColors, intensity), "SetIntensity", {0}, narrowed},
        {OF(VHS, speed), "SetParams", {0}, whole},
        {OF(VHS, shift), "SetParams", {1}, whole},
        {OF(VHS, smoothness), "SetParams", {2}, whole},
        {OF(VHS, relief), "SetParams", {3}, whole},
        {OF(VHS, intensity), "SetIntensity", {0}, narrowed},
        {OF(Television70s, stripesWidth), "SetStripesWidth", {0}, narrowed},
        {OF(Television70s, intensity), "SetIntensity", {0}, narrowed},
        {OF(GlitchMpeg, intensity), "SetIntensity", {0}, narrowed},
        {OF(GlitchSecurityCam, randDistortion), "SetRandDistortion", {0}, narrowed},
        {OF(GlitchSecurityCam, constDistortion), "SetConstDistortion", {0}, narrowed},
        {OF(GlitchSecurityCam, intensity), "SetIntensity", {0}, narrowed},
        {OF(FilmStrip, type), "SetType", {0},
            {{0, 1}, {1, 2}, {2, 3}, {3, absent}, {256, absent}, {-1, absent}, {least, absent}, {most, absent}}},
    };
}

std::vector<Row> colorFilters()
{
    return {
        {OF(ColorBrush, pType), "type", {}, enumeration(2, left)},
        {OF(ColorBrush, angle), "angle", {}, integers},
        {OF(ColorBrush, size), "size", {}, integers},
        {OF(ColorBrush, rough), "rough", {}, integers},
        {OF(ColorBrush, intensity), "SetIntensity", {0}, narrowed},
        {OF(ColorFilter, preset), "preset", {}, enumeration(36, 0)},
        {OF(ColorFilter, intensity), "intensity", {}, narrowed},
        {OF(ColorMixBurn, intensity), "SetStrength", {0}, whole},
        {OF(ColorSelect, color), "red", {}, red},
        {OF(ColorSelect, color), "green", {}, green},
        {OF(ColorSelect, color), "blue", {}, blue},
        {OF(ColorSelect, hueTolerance), "SetParams", {0}, integers},
        {OF(ColorSelect, noiseLevel), "SetParams", {1}, of256},
        {OF(ColorSelect, harshness), "SetParams", {2}, percent},
        {OF(ColorSelect, transparency), "SetParams", {3}, percent},
        {OF(ColorSelect, intensity), "SetIntensity", {0}, narrowed},
        {OF(ColorMixExchange, color), "SetExchangeColor", {0}, red},
        {OF(ColorMixExchange, color), "SetExchangeColor", {1}, green},
        {OF(ColorMixExchange, color), "SetExchangeColor", {2}, blue},
        {OF(ColorMixExchange, intensity), "SetIntensity", {0}, narrowed},
        {OF(Invert, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> light()
{
    return {
        {OF(FlyingObjects, preset), "SetObjectsCount", {0},
            {{0, 60}, {15, 83}, {16, absent}, {256, absent}, {-1, absent}, {least, absent}, {most, absent}}},
        {OF(FlyingObjects, preset), "firstValue", {}, {{0, 270}, {15, 0}, {16, left}, {-1, left}, {most, left}}},
        {OF(FlyingObjects, preset), "secondValue", {}, {{0, 30}, {15, 45}, {16, left}, {-1, left}, {least, left}}},
        {OF(FlyingObjects, preset), "thirdValue", {}, {{0, 45}, {8, 1}, {16, left}, {-1, left}, {256, left}}},
        {OF(FlyingObjects, intensity), "SetIntensity", {0}, narrowed},
        {OF(LensFlare, Presets), "preset", {},
            {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, left}, {5, left}, {6, 4}, {7, 5}, {8, left}, {256, left}, {-1, left},
                {least, left}, {most, left}}},
        {OF(LensFlare, intensity), "SetIntensity", {0}, narrowed},
        {OF(LightLeaks, Presets), "preset", {}, enumeration(16, 0)},
        {OF(LightLeaks, intensity), "SetIntensity", {0}, narrowed},
        {OF(VignetteFilter, preset), "firstMode", {},
            {{0, 0}, {2, 3}, {8, 5}, {9, left}, {256, left}, {-1, left}, {least, left}, {most, left}}},
        {OF(VignetteFilter, preset), "secondMode", {}, {{0, 1}, {2, 0}, {9, left}, {-1, left}, {most, left}}},
        {OF(VignetteFilter, preset), "thirdMode", {}, {{0, 0}, {5, 1}, {9, left}, {-1, left}, {most, left}}},
        {OF(VignetteFilter, preset), "SetColor", {3}, {{0, 100}, {8, 100}, {9, absent}, {-1, absent}, {most, absent}}},
        {OF(VignetteFilter, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> equalizer()
{
    // The preset's number plays no part: the bands do.
    return {{OF(AudioEqualizer, preset), "SetIntensity", {0}, {{0, absent}, {23, absent}, {most, absent}}}};
}

std::vector<Row> dynamics()
{
    return {
        {OF(AudioNoiseGate, detection), "detection", {}, enumeration(2, 0)},
        {OF(AudioNoiseGate, link), "link", {}, enumeration(2, 0)},
        {OF(AudioNoiseGate, gainIn), "SetLevelIn", {0}, levels},
        {OF(AudioNoiseGate, threshold), "SetThreshold", {0}, levels},
        {OF(AudioNoiseGate, ratio), "SetRatio", {0}, narrowed},
        {OF(AudioNoiseGate, attack), "SetAttackMs", {0}, raised},
        {OF(AudioNoiseGate, release), "SetReleaseMs", {0}, raised},
        {OF(AudioNoiseGate, gainOut), "SetMakeup", {0}, levels},
        {OF(AudioNoiseGate, knee), "SetKnee", {0}, narrowed},
        {OF(AudioNoiseGate, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioCompressor, detection), "detection", {}, enumeration(2, 0)},
        {OF(AudioCompressor, link), "link", {}, enumeration(2, 0)},
        {OF(AudioCompressor, gainIn), "SetLevelIn", {0}, levels},
        {OF(AudioCompressor, threshold), "SetThreshold", {0},
            {{-20.0, 0.1}, {20.0, 10.0}, {1e6, infinity}, {-1e6, 0.0}, {infinity, infinity}, {-infinity, 0.0},
                {nan, nan}}},
        {OF(AudioCompressor, ratio), "SetRatio", {0}, narrowed},
        {OF(AudioCompressor, attack), "SetAttack", {0}, raised},
        {OF(AudioCompressor, release), "SetRelease", {0}, raised},
        {OF(AudioCompressor, gainOut), "SetMakeup", {0}, levels},
        {OF(AudioCompressor, knee), "SetKnee", {0}, narrowed},
        {OF(AudioCompressor, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> modulation()
{
    return {
        {OF(AudioDistortion, type), "type", {}, enumeration(5, 0)},
        {OF(AudioDistortion, boost), "SetBoost", {0}, narrowed},
        {OF(AudioDistortion, tone), "SetTone", {0}, narrowed},
        {OF(AudioDistortion, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioReverb, delay), "SetDelay", {0},
            {{leastLong, leastLong}, {-1, -1}, {0, 0}, {(std::int64_t(1) << 53) + 1, (std::int64_t(1) << 53) + 1},
                {mostLong, mostLong}}},
        // The product with 0.001 is another double for 9 and 13.
        {OF(AudioReverb, duration), "SetReverberationTime", {0},
            {{9, 0.009}, {13, 0.013}, {16777217, 16777.217}, {0, 0.0}, {-1500, -1.5}, {mostLong, 9223372036854776.0},
                {leastLong, -9223372036854776.0}}},
        {OF(AudioReverb, dryWetBalance), "SetDryGain", {0},
            {{0.3, 0.7}, {-0.3, 1.0}, {0.0, 1.0}, {-0.0, 1.0}, {smallest, 1.0}, {largest, -largest},
                {infinity, -infinity}, {-infinity, 1.0}, {nan, 1.0}}},
        {OF(AudioReverb, dryWetBalance), "SetWetGain", {0},
            {{0.3, 1.0}, {-0.3, 0.7}, {0.0, 1.0}, {-0.0, 1.0}, {-smallest, 1.0}, {-largest, -largest}, {infinity, 1.0},
                {-infinity, -infinity}, {nan, 1.0}}},
        // Of 48,000 samples a second.
        {OF(AudioReverb, frequency), "SetSlpfFrequency", {0},
            {{least, least}, {0, 0}, {24000, 24000}, {24001, 24000}, {most, 24000}}},
        {OF(AudioReverb, frequency), "modeA", {}, {{0, 2}}},
        {OF(AudioReverb, frequency), "modeB", {}, {{0, 1}}},
        {OF(AudioReverb, frequency), "modeC", {}, {{0, 1}}},
        {OF(AudioFlanger, shape), "shape", {}, enumeration(2, 1)},
        {OF(AudioFlanger, interpolation), "interpolation", {}, enumeration(2, 0)},
        {OF(AudioFlanger, delay), "SetDelay", {0}, narrowedIntegers},
        {OF(AudioFlanger, depth), "SetDepth", {0}, narrowedIntegers},
        {OF(AudioFlanger, regen), "SetRegen", {0}, narrowed},
        {OF(AudioFlanger, speed), "SetSpeed", {0}, narrowed},
        {OF(AudioFlanger, phase), "SetPhase", {0}, narrowed},
        {OF(AudioFlanger, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioVibrato, frequencyHz), "SetFrequency", {0}, narrowed},
        {OF(AudioVibrato, intensity), "SetIntensity", {0}, narrowed},
    };
}

// A band is a pair of its frequency and its gain; those of index 0 to 9 are at 32 to 16384 Hz.

/// The gain at 256 Hz, which lies between the bounds.
Steps const inBand{{least, -2147483648.0}, {0, 0.0}, {most, 2147483647.0}};
/// The gain at 32 Hz, which lies outside of them. 0 is not turned into -0.
Steps const outOfBand{{least, 2147483648.0}, {-1, 1.0}, {0, 0.0}, {most, -2147483647.0}};
/// The gain at 128 Hz: half-way to its neighbours on the scale of octaves are 90.51 and 181.02 Hz.
Steps const lowerBound{
    {90, 10.0}, {91, 0.0}, {181, 0.0}, {182, -50.0}, {0, 10.0}, {-1, 10.0}, {least, 10.0}, {most, -50.0}};
/// The gain at 2048 Hz: half-way to its neighbours are 1448.15 and 2896.31 Hz.
Steps const upperBound{
    {1448, -50.0}, {1449, 0.0}, {2896, 0.0}, {2897, 10.0}, {0, -50.0}, {-1, -50.0}, {least, -50.0}, {most, 10.0}};

std::vector<Row> voice()
{
    auto const noise = making<AudioRadio>(&AudioRadio::noiseLevel);
    auto const crackle = making<AudioRadio>(&AudioRadio::cracklePrecision);
    return {
        {OF(AudioPhone, gainUp), "SetMultiband", {0, 3, 1}, inBand},
        {OF(AudioPhone, gainDown), "SetMultiband", {0, 0, 1}, outOfBand},
        {OF(AudioPhone, lBound), "SetMultiband", {0, 2, 1}, lowerBound},
        {OF(AudioPhone, rBound), "SetMultiband", {0, 6, 1}, upperBound},
        {OF(AudioPhone, intensity), "SetIntensity", {0}, narrowed},
        // The peak: the sum of both gains, which goes around where 32 bits end, less the second one.
        {OF(AudioMuffle, gainUp), "SetMultiband", {0, 5, 1}, {{7, 7.0}, {least, -2147483648.0}, {most, -2147483649.0}}},
        {OF(AudioMuffle, gainDown), "SetMultiband", {0, 5, 1}, {{7, 10.0}, {least, 10.0}, {most, -4294967286.0}}},
        {OF(AudioMuffle, mean), "SetMultiband", {0, 5, 1},
            {{1024, 10.0}, {0, -50.0}, {-1, nan}, {least, nan}, {most, -50.0}}},
        {OF(AudioMuffle, dispersion), "SetMultiband", {0, 4, 1},
            {{0.0, -50.0}, {smallest, -50.0}, {largest, 10.0}, {infinity, 10.0}, {-infinity, 10.0}, {nan, nan}}},
        {OF(AudioMuffle, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioRadio, gainUp), "SetMultiband", {0, 3, 1}, inBand},
        {OF(AudioRadio, gainDown), "SetMultiband", {0, 0, 1}, outOfBand},
        {OF(AudioRadio, lBound), "SetMultiband", {0, 2, 1}, lowerBound},
        {OF(AudioRadio, rBound), "SetMultiband", {0, 6, 1}, upperBound},
        {"Effect::AudioRadio", "crackleP", crackle, "SetCracklePrecision", {0}, integers},
        {"Effect::AudioRadio", "noise", noise, "SetNoiseLevel", {0}, whole},
        {OF(AudioRadio, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioEcho, gainIn), "SetGainInOut", {0}, whole},
        {OF(AudioEcho, gainOut), "SetGainInOut", {1}, whole},
        {OF(AudioEcho, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioPitch, pitch), "SetPitch", {0}, whole},
        {OF(AudioPitch, intensity), "SetIntensity", {0}, narrowed},
        {OF(AudioRobot, level), "SetLevel", {0}, whole},
        {OF(AudioRobot, pitch), "SetPitch", {0}, whole}, // of the pitch settings within
        {OF(AudioRobot, intensity), "SetIntensity", {0}, narrowed},
    };
}

std::vector<Row> cleanUp()
{
    return {
        // Of 0.5 - 0.6 * 2147483647, which is -1288490187.7, and of 1288490189.3: truncated.
        {OF(AudioNoiseSuppress, levelPercent), "SetLevel", {0},
            {{0, 0}, {1, 0}, {2, 0}, {3, -1}, {50, -29}, {100, -59}, {-1, 1}, {most, -1288490187},
                {least, 1288490189}}},
    };
}

#undef OF

struct Family
{
    char const * name;
    std::vector<Row> (*rows)();
};

void PrintTo(Family const & family, std::ostream * stream)
{
    *stream << family.name;
}

constexpr Family families[] = {
    {"ColorCorrection", colorCorrection},
    {"Geometry", geometry},
    {"Composition", composition},
    {"Mask", mask},
    {"Shaders", shaders},
    {"Blur", blur},
    {"Distortion", distortion},
    {"Artistic", artistic},
    {"Retro", retro},
    {"ColorFilters", colorFilters},
    {"Light", light},
    {"Equalizer", equalizer},
    {"Dynamics", dynamics},
    {"Modulation", modulation},
    {"Voice", voice},
    {"CleanUp", cleanUp},
};

/// The values at a place in the description of a settings object, or of one that it was given: the list of a call's
/// arguments, or a data member.
void collect(Value const & settings, std::string const & place, std::vector<Value> & found)
{
    if (Value const * const field = settings.find("fields")->find(place))
        found.push_back(*field);
    for (Value const & call : *settings.find("calls")->as<Value::List>()) {
        auto const & parts = *call.as<Value::List>();
        if (*parts.front().as<std::string>() == place)
            found.emplace_back(Value::List(parts.begin() + 1, parts.end()));
        for (Value const & argument : parts)
            if (argument.find("calls"))
                collect(argument, place, found);
    }
}

/// The number at a place, or null when nothing was given there.
Value numberAt(Object const & effect, Row const & row)
{
    Quoril::Proc::Trace const trace;
    auto const record = effect.type() == Type::Video ? Factory::videoEffectSettings(effect, {})
                                                     : Factory::audioEffectSettings(effect, {});
    std::vector<Value> found;
    for (auto const & settings : record.settings)
        collect(trace.describe(*settings), row.place, found);
    EXPECT_LE(found.size(), 1U) << "more than one " << row.place;
    if (found.empty())
        return {};
    Value value = found.front();
    for (std::size_t const index : row.path) {
        auto const * const object = value.as<Value::Object>();
        Value const next = object ? object->at(index).second : value.as<Value::List>()->at(index);
        value = next;
    }
    return value;
}

/// What the integers among the data members start with.
std::int64_t engineStart()
{
    return Quoril::Proc::SettingsEffectMirror().vertical;
}

void expectPassed(Value const & value, Passed const & passed)
{
    if (std::holds_alternative<Absent>(passed)) {
        EXPECT_EQ(value.toString(), "null");
        return;
    }
    if (auto const * const expected = std::get_if<double>(&passed)) {
        auto const * const number = value.as<double>();
        ASSERT_NE(number, nullptr) << value.toString() << " is no double";
        if (std::isnan(*expected)) {
            EXPECT_TRUE(std::isnan(*number)) << *number;
        } else {
            EXPECT_EQ(*number, *expected);
            EXPECT_EQ(std::signbit(*number), std::signbit(*expected));
        }
        return;
    }
    auto const * const number = value.as<std::int64_t>();
    ASSERT_NE(number, nullptr) << value.toString() << " is no integer";
    EXPECT_EQ(*number, std::holds_alternative<Left>(passed) ? engineStart() : std::get<std::int64_t>(passed));
}

class Numbers : public testing::TestWithParam<Family>
{
protected:
    void SetUp() override
    {
        resources.add("table", "table.cube");
        resources.write("table.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
        int width = 0;
        for (char const * const name :
            {"bang", "blossom", "bokeh", "butterfly", "clover", "diamonds", "heart", "ice", "star"})
            Testing::writeImage(::Settings::stockBlurMasksPath() + "/" + name + ".png", ++width, 1);
    }

    Testing::TemporaryStock stock;
    Testing::TemporaryResources resources;
    Factory::SettingsFactory factory;
};

TEST_P(Numbers, ReachTheSettings)
{
    for (Row const & row : GetParam().rows()) {
        for (Step const & step : row.steps) {
            SCOPED_TRACE(testing::Message() << row.className << ", " << row.key << " of "
                                            << std::visit([](auto held) { return Value(held).toString(); }, step.held)
                                            << " in " << row.place);
            auto const effect = row.make(step.held);
            EXPECT_EQ(effect->GetNameInArchive(), row.className);
            expectPassed(numberAt(*effect, row), step.passed);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(EveryFamily, Numbers, testing::ValuesIn(families),
    [](testing::TestParamInfo<Family> const & family) { return std::string(family.param.name); });

/// Whether the factory has settings for the class: it is no descriptor, and no base of others.
bool isConverted(Object const & effect)
{
    return !effect.id.isEmpty() && !dynamic_cast<EffectDescriptor const *>(&effect);
}

TEST(NumbersTable, HasEveryNumberOfEveryEffect)
{
    std::set<std::string> listed;
    for (Family const & family : families)
        for (Row const & row : family.rows())
            listed.insert(std::string(row.className) + ", " + row.key);
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Testing::created(name);
        auto const * const effect = dynamic_cast<Object const *>(object.get());
        if (!effect || !isConverted(*effect))
            continue;
        nlohmann::json const keys = Testing::ownKeys(*effect);
        for (auto const & [key, value] : keys.items())
            if (value.is_number()) {
                EXPECT_EQ(listed.count(name + ", " + key), 1U) << name << ", " << key << " has no row";
            }
    }
}

/// The settings that come of an effect, in words.
std::vector<std::string> described(
    Object const & effect, Factory::VideoParams const & videoParams = {}, Factory::AudioParams const & audioParams = {})
{
    Quoril::Proc::Trace const trace;
    auto const record = effect.type() == Type::Video ? Factory::videoEffectSettings(effect, videoParams)
                                                     : Factory::audioEffectSettings(effect, audioParams);
    std::vector<std::string> settings;
    for (auto const & one : record.settings)
        settings.push_back(trace.describe(*one).toString());
    return settings;
}

TEST(NumbersTable, HasTheIntensityOfEveryEffectThatPassesIt)
{
    std::set<std::string> listed;
    for (Family const & family : families)
        for (Row const & row : family.rows())
            if (row.key == std::string("intensity"))
                listed.insert(row.className);
    Factory::SettingsFactory const factory;
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Testing::created(name);
        auto * const effect = dynamic_cast<Object *>(object.get());
        if (!effect || !isConverted(*effect))
            continue;
        SCOPED_TRACE(name);
        bool const isRead = Schema::of(*effect)->find("intensity")->isEffective.value();
        EXPECT_EQ(listed.count(name), isRead ? 1U : 0U);
        if (!isRead) {
            auto const before = described(*effect);
            effect->intensity = 0.1;
            EXPECT_EQ(described(*effect), before);
        }
    }
}

/// The parameters of a render, each number of which is of another size.
constexpr Factory::VideoParams largeVideo{{leastLong, mostLong}, mostLong - 1};

TEST(RenderParameters, ReachTheEffectsThatReadThemAndNoOther)
{
    std::set<std::string> const readers{
        "Effect::AudioReverb", "Effect::FixVertVideo", "Effect::FlyingObjects", "Effect::Mask"};
    Factory::SettingsFactory const factory;
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Testing::created(name);
        auto const * const effect = dynamic_cast<Object const *>(object.get());
        if (effect && isConverted(*effect) && readers.count(name) == 0) {
            EXPECT_EQ(described(*effect, largeVideo, {1}), described(*effect, {}, {})) << name;
        }
    }
}

TEST(RenderParameters, OfAVideoAreCopied)
{
    Factory::SettingsFactory const factory;
    EXPECT_THAT(described(FixVertVideo(), largeVideo),
        testing::ElementsAre(R"({"class": "SettingsEffectFixVertVideo", "calls": [], )"
                             R"("fields": {"geometry": [-9223372036854775808, 9223372036854775807]}})"));
    EXPECT_THAT(described(FlyingObjects(), largeVideo),
        testing::ElementsAre(testing::HasSubstr(R"("paramsHead": [-9223372036854775808, 9223372036854775807], )")));
}

TEST(RenderParameters, OfAnAudioBoundTheLowPassOfAReverb)
{
    struct
    {
        std::int64_t sampleRate, passed;
    } const rows[] = {
        {44100, 22050}, {44101, 22050}, {1, 0}, {0, 0}, {-1, 0}, {-3, -1}, {least, -1073741824}, {most, 1073741823}};
    Factory::SettingsFactory const factory;
    AudioReverb effect;
    effect.frequency = std::numeric_limits<std::int32_t>::max();
    for (auto const & row : rows) {
        EXPECT_THAT(described(effect, {}, {static_cast<std::int32_t>(row.sampleRate)}),
            testing::ElementsAre(testing::HasSubstr("[\"SetSlpfFrequency\", " + std::to_string(row.passed) + "]")))
            << row.sampleRate;
    }
}

} // namespace
