// The factory's two tables, row by row.

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <utility>
#include <vector>

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
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Light.h>
#include <effects/Mask.h>
#include <effects/Mirroring.h>
#include <effects/Modulation.h>
#include <effects/PrivateIdentity.h>
#include <effects/Retro.h>
#include <effects/Shaders.h>
#include <effects/Voice.h>
#include <support/Conversion.h>
#include <support/Variations.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Factory::AudioParams;
using Factory::VideoParams;
using Testing::convert;
using Testing::Converted;
using testing::ElementsAre;
using testing::IsEmpty;

/// A host's class, which adds to one of the library's.
template <class Class> struct Derived : Class
{
    QString note = QStringLiteral("a host's own");
};

/// A descriptor that a host made up.
struct HostDescriptor final : EffectDescriptor
{
    using EffectDescriptor::EffectDescriptor;
};

struct Row
{
    QString const & id;
    std::shared_ptr<Object> effect;  ///< that gives settings
    std::shared_ptr<Object> derived; ///< the same, of a class derived from its
    char const * settings;           ///< class of the settings object
    int stageCode;
    char const * implementation;
};

template <class Class>
Row row(QString const & id, char const * settings, int stageCode = 18, char const * implementation = "DEFAULT")
{
    auto const effect = std::make_shared<Class>();
    auto const derived = std::make_shared<Derived<Class>>();
    for (Class * const one : {effect.get(), static_cast<Class *>(derived.get())}) {
        if constexpr (std::is_same_v<Class, ManualEnhance>)
            one->setHue(1);
        if constexpr (std::is_same_v<Class, Mask>)
            one->addFrame(FrameConceal());
    }
    return {id, effect, derived, settings, stageCode, implementation};
}

template <class Class> Row audioRow(QString const & id, char const * settings, char const * implementation = "DEFAULT")
{
    return row<Class>(id, settings, 1, implementation);
}

std::vector<Row> const & videoRows()
{
    static std::vector<Row> const rows{
        row<AutoContrast>(Id::AutoContrast, "SettingsEffectAutoContrast", 19),
        row<AutoSaturation>(Id::AutoSaturation, "SettingsEffectSaturation", 19),
        row<WhiteBalance>(Id::WhiteBalance, "SettingsEffectAutoWhiteBalance", 19),
        row<MagicEnhance>(Id::MagicEnhance, "SettingsEffectMagicEnhance2", 19),
        row<ManualEnhance>(Id::ManualEnhance, "SettingsEffectGIMPHueSaturation"),
        row<Sharpen>(Id::Sharpen, "SettingsEffectSharpen"),
        row<RetroArtefacts>(Id::RetroArtefacts, "SettingsEffectRetroArtefacts"),
        row<RetroColors>(Id::RetroColors, "SettingsEffectRetroColors"),
        row<Flip>(Id::Flip, "SettingsEffectTransform"),
        row<Mirror>(Id::Mirror, "SettingsEffectMirror"),
        row<Blur>(Id::Blur, "SettingsEffectBlurGaussian"),
        row<CameraShake>(Id::CameraShake, "SettingsEffectCameraShake"),
        row<AddNoize>(Id::AddNoize, "SettingsEffectAddNoize"),
        row<Invert>(Id::Invert, "SettingsEffectInvert"),
        row<FlyingObjects>(Id::FlyingObjects, "SettingsEffectFlyingObjects"),
        row<BokehBlur>(Id::BokehBlur, "SettingsEffectBokehBlur"),
        row<PictureInPicture>(Id::PictureInPicture, "SettingsEffectSubFrame"),
        row<SideBySide>(Id::SideBySide, "SettingsEffectSubFrame"),
        row<ChromaKey>(Id::ChromaKey, "SettingsEffectChromakey"),
        row<Opacity>(Id::Opacity, "SettingsEffectOpacity"),
        row<PopArt>(Id::PopArt, "SettingsEffectPopArt"),
        row<Twirl>(Id::Twirl, "SettingsEffectTwirl"),
        row<Vertigo>(Id::Vertigo, "SettingsEffectVertigo"),
        row<VHS>(Id::VHS, "SettingsEffectVHS"),
        row<Stripes>(Id::Stripes, "SettingsEffectStripes"),
        row<Mosaic>(Id::Mosaic, "SettingsEffectMosaic"),
        row<Posterize>(Id::Posterize, "SettingsEffectPosterize"),
        row<FindEdges>(Id::FindEdges, "SettingsEffectFindEdges"),
        row<OilPaint>(Id::OilPaint, "SettingsEffectOilPaint"),
        row<GlassMosaic>(Id::GlassMosaic, "SettingsEffectGlassMosaic"),
        row<Erosion>(Id::Erosion, "SettingsEffectErosion"),
        row<Diffuse>(Id::Diffuse, "SettingsEffectDiffuse"),
        row<TiltShift>(Id::TiltShift, "SettingsEffectTiltShiftQEM"),
        row<Crop>(Id::Crop, "SettingsEffectTransform"),
        row<Mask>(Id::Mask, "SettingsEffectMask"),
        row<Transpose>(Id::Transpose, "SettingsEffectTransform"),
        row<FishEye>(Id::FishEye, "SettingsEffectFishEye"),
        row<ColorBrush>(Id::ColorBrush, "SettingsEffectColorBrush"),
        row<FilmStrip>(Id::FilmStrip, "SettingsEffectFilmStrip"),
        row<ColorFilter>(Id::ColorFilter, "SettingsEffectColorFilter"),
        row<ColorMixBurn>(Id::ColorMixBurn, "SettingsEffectColorMixBurn"),
        row<ColorSelect>(Id::ColorSelect, "SettingsEffectColorSelect"),
        row<ColorMixExchange>(Id::ColorMixExchange, "SettingsEffectColorMixExchange"),
        row<MotionBlur>(Id::MotionBlur, "SettingsEffectMotionBlur"),
        row<HalfTone>(Id::HalfTone, "SettingsEffectHalfTone"),
        row<LensFlare>(Id::LensFlare, "SettingsEffectLensFlare"),
        row<LightLeaks>(Id::LightLeaks, "SettingsEffectLightLeaks"),
        row<VignetteFilter>(Id::VignetteFilter, "SettingsEffectVignetteFilter"),
        row<FixVertVideo>(Id::FixVertVideo, "SettingsEffectFixVertVideo"),
        row<ChromaticAberration>(Id::ChromaticAberration, "SettingsEffectChromaticAberration"),
        row<GlitchSecurityCam>(Id::GlitchSecurityCam, "SettingsEffectGlitchSecurityCam"),
        row<GlitchMpeg>(Id::GlitchMpeg, "SettingsEffectGlitchMpeg"),
        row<Television70s>(Id::Television70s, "SettingsEffectTelevision70s"),
        row<LensDistortion>(Id::LensDistortion, "SettingsEffectLensDistortion"),
        row<ExternalShader>(Id::ExternalShader, "SettingsEffectTemplateQES", 2, "OGL"),
        row<Overlay>(Id::Overlay, "SettingsEffectColorBlender"),
        row<ColorBlending>(Id::ColorBlending, "SettingsEffectColorBlender"),
        row<AlphaInserter>(Id::AlphaInserter, "SettingsEffectAlphaInserter", 2, "OGL"),
        row<Lut>(Id::Lut, "SettingsEffectLUT"),
        row<ShaderISF>(Id::ShaderISF, "SettingsEffectISF"),
    };
    return rows;
}

std::vector<Row> const & audioRows()
{
    static std::vector<Row> const rows{
        audioRow<AudioEqualizer>(Id::AudioEqualizer, "SettingsAudioEqualizer"),
        audioRow<AudioRadio>(Id::AudioRadio, "SettingsAudioRadio"),
        audioRow<AudioPhone>(Id::AudioPhone, "SettingsAudioEqualizer"),
        audioRow<AudioMuffle>(Id::AudioMuffle, "SettingsAudioEqualizer"),
        audioRow<AudioEcho>(Id::AudioEcho, "SettingsAudioEcho"),
        audioRow<AudioPitch>(Id::AudioPitch, "SettingsAudioPitch"),
        audioRow<AudioRobot>(Id::AudioRobot, "SettingsAudioRobot"),
        audioRow<AudioDistortion>(Id::Distortion, "SettingsAudioDistortion"),
        audioRow<AudioReverb>(Id::Reverb, "SettingsAudioReverberationImpulseResponse"),
        audioRow<AudioNoiseGate>(Id::NoiseGate, "SettingsAudioGate"),
        audioRow<AudioCompressor>(Id::Compressor, "SettingsAudioCompressor"),
        audioRow<AudioFlanger>(Id::Flanger, "SettingsAudioFlanger"),
        audioRow<AudioVibrato>(Id::Vibrato, "SettingsAudioVibrato"),
        audioRow<AudioNoiseSuppress>(Id::NoiseSuppress, "SettingsAudioNoiseSuppress", "SPEEX"),
        audioRow<AudioMonoChannel>(Id::AudioMonoChannel, "SettingsFilterResample"),
    };
    return rows;
}

/// One of the tables, with the operation that looks it up.
struct Table
{
    char const * name;
    std::vector<Row> const & (*rows)();
    Converted (*convert)(Object const &);
    Converted (*convertByTheOther)(Object const &);
};

void PrintTo(Table const & table, std::ostream * stream)
{
    *stream << table.name;
}

Converted convertVideo(Object const & effect)
{
    return convert(effect, VideoParams());
}

Converted convertAudio(Object const & effect)
{
    return convert(effect, AudioParams());
}

constexpr Table tables[] = {
    {"Video", videoRows, convertVideo, convertAudio},
    {"Audio", audioRows, convertAudio, convertVideo},
};

class Dispatch : public testing::TestWithParam<Table>
{
protected:
    static void expectNothing(Converted const & converted, std::string const & message)
    {
        EXPECT_THAT(converted.settings, IsEmpty());
        EXPECT_EQ(converted.stageCode, 0);
        EXPECT_EQ(converted.implementation, "");
        EXPECT_THAT(converted.log, ElementsAre(message));
    }

    Factory::SettingsFactory factory;
};

INSTANTIATE_TEST_SUITE_P(Tables, Dispatch, testing::ValuesIn(tables),
    [](testing::TestParamInfo<Table> const & table) { return std::string(table.param.name); });

TEST_P(Dispatch, EveryRowHasItsSettingsStageAndImplementation)
{
    for (Row const & row : GetParam().rows()) {
        SCOPED_TRACE(row.settings);
        EXPECT_EQ(row.effect->id, row.id);
        Converted const converted = GetParam().convert(*row.effect);
        ASSERT_EQ(converted.settings.size(), 1U);
        EXPECT_THAT(
            converted.settings[0], testing::StartsWith(std::string(R"({"class": ")") + row.settings + R"(", )"));
        EXPECT_EQ(converted.stageCode, row.stageCode);
        EXPECT_EQ(converted.implementation, row.implementation);
    }
}

TEST_P(Dispatch, AHostsDerivedClassIsConvertedAsItsBase)
{
    for (Row const & row : GetParam().rows()) {
        SCOPED_TRACE(row.settings);
        Converted const asItself = GetParam().convert(*row.effect);
        Converted const asDerived = GetParam().convert(*row.derived);
        EXPECT_EQ(asDerived.settings, asItself.settings);
        EXPECT_EQ(asDerived.stageCode, row.stageCode);
        EXPECT_EQ(asDerived.implementation, row.implementation);
    }
}

TEST_P(Dispatch, EveryRowRefusesAnotherClass)
{
    std::vector<Row> const & rows = GetParam().rows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        Row const & row = rows[index];
        SCOPED_TRACE(row.settings);
        EXPECT_THROW(GetParam().convert(VideoEffect(row.id, row.id)), std::bad_cast);
        EXPECT_THROW(GetParam().convert(AudioFilter(row.id, row.id)), std::bad_cast);
        EXPECT_THROW(GetParam().convert(AudioEffect(row.id, row.id)), std::bad_cast);

        // A class that another row converts is none the better.
        Object & other = *rows[(index + 1) % rows.size()].effect;
        QString const itsOwn = std::exchange(other.id, row.id);
        EXPECT_THROW(GetParam().convert(other), std::bad_cast);
        other.id = itsOwn;
        EXPECT_THAT(GetParam().convert(other).settings, testing::SizeIs(1));
    }
}

TEST_P(Dispatch, ADescriptorIsRefusedWhateverItsIdentifier)
{
    for (Row const & row : GetParam().rows()) {
        std::string const message = "Settings requested for descriptor. Effect ID is " + row.id.toStdString();
        for (Type const type : {Type::Video, Type::Audio}) {
            expectNothing(GetParam().convert(EffectDescriptor(row.id, row.id, type)), message);
            expectNothing(GetParam().convert(EffectsHolder(row.id, row.id, type)), message);
            expectNothing(GetParam().convert(HostDescriptor(row.id, row.id, type)), message);
        }
    }
}

TEST_P(Dispatch, NoIdentifierIsInBothTables)
{
    for (Row const & row : GetParam().rows())
        expectNothing(GetParam().convertByTheOther(*row.effect),
            "Couldn't provide settings for unknown effect. Effect ID is " + row.id.toStdString());
}

TEST_P(Dispatch, IdentifiersAreComparedToTheLetter)
{
    for (Row const & row : GetParam().rows()) {
        for (QString const & id : {row.id.toUpper(), row.id + QLatin1Char(' '), row.id.left(35), QString()}) {
            row.effect->id = id;
            expectNothing(GetParam().convert(*row.effect),
                "Couldn't provide settings for unknown effect. Effect ID is " + id.toStdString());
        }
        row.effect->id = row.id;
    }
}

TEST_P(Dispatch, NeitherGroupNorTagIsLookedAt)
{
    for (Row const & row : GetParam().rows()) {
        Converted const before = GetParam().convert(*row.effect);
        QString const group = std::exchange(row.effect->groupId, Id::Crop);
        QString const tag = std::exchange(row.effect->tag, QStringLiteral("another"));
        EXPECT_EQ(GetParam().convert(*row.effect).settings, before.settings) << row.settings;
        row.effect->groupId = group;
        row.effect->tag = tag;
    }
}

TEST(DispatchTables, HaveARowForAClassThatOnlyAHostCanHave)
{
    Factory::SettingsFactory const factory;
    Invert other;
    other.id = Id::ColorMixField;
    EXPECT_THROW(convertVideo(other), std::bad_cast);
    EXPECT_THROW(convertVideo(VideoEffect(Id::ColorMixField, Id::ColorMixField)), std::bad_cast);
    EXPECT_THAT(convertVideo(EffectDescriptor(Id::ColorMixField, Id::ColorMixField, Type::Video)).log,
        ElementsAre("Settings requested for descriptor. Effect ID is 4675ad3e-cffd-4979-ae1f-5cbf07e8cbdd"));
    EXPECT_THAT(convertAudio(other).log, ElementsAre("Couldn't provide settings for unknown effect. Effect ID is "
                                                     "4675ad3e-cffd-4979-ae1f-5cbf07e8cbdd"));
}

/// A host's shader that knows better than its field.
struct HostShader final : ExternalShader
{
    bool hasIntensity() const override { return !supportsIntensity; }
};

TEST(DispatchTables, AskAHostsShaderWhetherItHasAnIntensity)
{
    Factory::SettingsFactory const factory;
    HostShader effect;
    effect.intensity = 0.25;
    EXPECT_THAT(convertVideo(effect).settings, ElementsAre(testing::HasSubstr(R"(["SetIntensity", 0.25])")));
    effect.supportsIntensity = true;
    EXPECT_THAT(convertVideo(effect).settings, ElementsAre(testing::HasSubstr(R"(["SetIntensity", -1])")));
}

TEST(DispatchTables, HaveEveryEffectThatIsNoDescriptor)
{
    std::vector<std::string> expected;
    for (std::string const & name : Serialize::Registry::names()) {
        auto const object = Testing::created(name);
        auto const * const effect = dynamic_cast<Object const *>(object.get());
        if (effect && !effect->id.isEmpty() && effect->impl() != Impl::Descriptor)
            expected.push_back(name);
    }
    std::vector<std::string> found;
    for (Table const & table : tables)
        for (Row const & row : table.rows())
            found.push_back(row.effect->GetNameInArchive());
    EXPECT_THAT(found, testing::UnorderedElementsAreArray(expected));
}

} // namespace
