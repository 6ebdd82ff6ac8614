#include <collection/Effects/SettingsFactory.h>

#include <functional>
#include <typeinfo>
#include <utility>

#include <boost/core/demangle.hpp>

#include <collection/Effects/Conversions.h>
#include <collection/Effects/FactoryCaches.h>
#include <ConfInt/ImplNames.h>
#include <effects/PrivateIdentity.h>

#include <QMap>

#include <glog/logging.h>

namespace Effect::Factory {

void throwWrongClass(Object const & effect, std::type_info const & expected)
{
    class WrongClass final : public std::bad_cast
    {
    public:
        explicit WrongClass(std::string text)
            : m_text(std::move(text))
        {}
        char const * what() const noexcept override { return m_text.c_str(); }

    private:
        std::string m_text;
    };
    throw WrongClass("the identifier \"" + effect.id.toStdString() + "\" belongs to the class " +
                     boost::core::demangle(expected.name()) + ", and the effect is of the class " +
                     boost::core::demangle(typeid(effect).name()));
}

EffectSettings makeEffectSettings(
    std::unique_ptr<Proc::Settings> settings, std::uint8_t stageCode, std::string implementation)
{
    EffectSettings record{{}, stageCode, std::move(implementation)};
    record.settings.push_back(std::move(settings));
    return record;
}

namespace {

/// How the effects of one identifier are converted.
template <class Params> struct Conversion
{
    Conversion() = default;
    template <class Function>
    Conversion(Function function, std::type_info const * itsClass = nullptr)
        : convert(std::move(function))
        , effectClass(itsClass)
    {}

    std::function<EffectSettings(Object const &, Params const &)> convert;
    std::type_info const * effectClass = nullptr; ///< null where the conversion does not say
};

template <class Params> using Table = QMap<QString, Conversion<Params>>;

/// Casts the effect to its class, which throws for another one, and makes the settings object that `fillAndWrap` turns
/// into a record.
template <class Effect, class Settings, class Params, class Lambda> Conversion<Params> wrap(Lambda fillAndWrap)
{
    return {[fillAndWrap](Object const & object, Params const & params) {
                return fillAndWrap(castTo<Effect>(object), std::make_unique<Settings>(), params);
            },
        &typeid(Effect)};
}

/// A conversion that fills its settings object through the family's `fill`.
template <class Effect, class Settings, class Params>
Conversion<Params> row(std::uint8_t stageCode, std::string const & implementation)
{
    return wrap<Effect, Settings, Params>(
        [stageCode, &implementation](Effect const & effect, std::unique_ptr<Settings> settings, Params const & params) {
            fill(*settings, effect, params);
            return makeEffectSettings(std::move(settings), stageCode, implementation);
        });
}

template <class Effect, class Settings>
Conversion<VideoContext> video(
    std::uint8_t stageCode = Stage::video, std::string const & implementation = Proc::ImplNames::DEFAULT)
{
    return row<Effect, Settings, VideoContext>(stageCode, implementation);
}

/// A conversion that leaves its settings object as it was made.
template <class Effect, class Settings>
Conversion<VideoContext> bareVideo(
    std::uint8_t stageCode = Stage::video, std::string const & implementation = Proc::ImplNames::DEFAULT)
{
    return wrap<Effect, Settings, VideoContext>(
        [stageCode, &implementation](Effect const &, std::unique_ptr<Settings> settings, VideoContext const &) {
            return makeEffectSettings(std::move(settings), stageCode, implementation);
        });
}

template <class Effect, class Settings>
Conversion<AudioParams> audio(std::string const & implementation = Proc::ImplNames::DEFAULT)
{
    return row<Effect, Settings, AudioParams>(Stage::audio, implementation);
}

template <class Params> EffectSettings lookUp(Table<Params> const & table, Object const & effect, Params const & params)
{
    auto const found = table.constFind(effect.id);
    // An object of the very class that is converted is no descriptor, which saves a search of its bases.
    bool const isConverted = found != table.constEnd() && found->effectClass && *found->effectClass == typeid(effect);
    if (!isConverted && dynamic_cast<EffectDescriptor const *>(&effect)) {
        LOG(ERROR) << "Settings requested for descriptor. Effect ID is " << effect.id.toStdString();
        return {};
    }
    if (found == table.constEnd()) {
        LOG(ERROR) << "Couldn't provide settings for unknown effect. Effect ID is " << effect.id.toStdString();
        return {};
    }
    EffectSettings record = found->convert(effect, params);
    if (!record.settings.empty())
        return record;
    LOG(ERROR) << "Couldn't provide settings for effect. Effect ID is " << effect.id.toStdString();
    return {};
}

} // namespace

struct SettingsFactory::Impl
{
    FactoryCaches caches;
};

SettingsFactory::SettingsFactory()
    : m_impl(std::make_unique<Impl>())
{
    setFactory(this);
}

SettingsFactory::~SettingsFactory()
{
    setFactory(nullptr);
}

EffectSettings SettingsFactory::createVideoEffectSettings(Object const & effect, VideoParams const & params)
{
    static Table<VideoContext> const table{
        {Id::AutoContrast, bareVideo<AutoContrast, Proc::SettingsEffectAutoContrast>(Stage::oneButton)},
        {Id::AutoSaturation, bareVideo<AutoSaturation, Proc::SettingsEffectSaturation>(Stage::oneButton)},
        {Id::WhiteBalance, video<WhiteBalance, Proc::SettingsEffectAutoWhiteBalance>(Stage::oneButton)},
        {Id::MagicEnhance, bareVideo<MagicEnhance, Proc::SettingsEffectMagicEnhance2>(Stage::oneButton)},
        {Id::ManualEnhance, convertManualEnhance},
        {Id::Sharpen, video<Sharpen, Proc::SettingsEffectSharpen>()},
        {Id::RetroArtefacts, video<RetroArtefacts, Proc::SettingsEffectRetroArtefacts>()},
        {Id::RetroColors, video<RetroColors, Proc::SettingsEffectRetroColors>()},
        {Id::Flip, video<Flip, Proc::SettingsEffectTransform>()},
        {Id::Mirror, video<Mirror, Proc::SettingsEffectMirror>()},
        {Id::Blur, video<Blur, Proc::SettingsEffectBlurGaussian>()},
        {Id::CameraShake, video<CameraShake, Proc::SettingsEffectCameraShake>()},
        {Id::AddNoize, video<AddNoize, Proc::SettingsEffectAddNoize>()},
        {Id::Invert, video<Invert, Proc::SettingsEffectInvert>()},
        {Id::FlyingObjects, video<FlyingObjects, Proc::SettingsEffectFlyingObjects>()},
        {Id::BokehBlur, video<BokehBlur, Proc::SettingsEffectBokehBlur>()},
        {Id::PictureInPicture, convertPictureInPicture},
        {Id::SideBySide, video<SideBySide, Proc::SettingsEffectSubFrame>()},
        {Id::ChromaKey, video<ChromaKey, Proc::SettingsEffectChromakey>()},
        {Id::Opacity, video<Opacity, Proc::SettingsEffectOpacity>()},
        {Id::PopArt, video<PopArt, Proc::SettingsEffectPopArt>()},
        {Id::Twirl, video<Twirl, Proc::SettingsEffectTwirl>()},
        {Id::Vertigo, video<Vertigo, Proc::SettingsEffectVertigo>()},
        {Id::VHS, video<VHS, Proc::SettingsEffectVHS>()},
        {Id::Stripes, video<Stripes, Proc::SettingsEffectStripes>()},
        {Id::Mosaic, video<Mosaic, Proc::SettingsEffectMosaic>()},
        {Id::Posterize, video<Posterize, Proc::SettingsEffectPosterize>()},
        {Id::FindEdges, video<FindEdges, Proc::SettingsEffectFindEdges>()},
        {Id::OilPaint, video<OilPaint, Proc::SettingsEffectOilPaint>()},
        {Id::GlassMosaic, video<GlassMosaic, Proc::SettingsEffectGlassMosaic>()},
        {Id::Erosion, video<Erosion, Proc::SettingsEffectErosion>()},
        {Id::Diffuse, video<Diffuse, Proc::SettingsEffectDiffuse>()},
        {Id::TiltShift, video<TiltShift, Proc::SettingsEffectTiltShiftQEM>()},
        {Id::Crop, video<Crop, Proc::SettingsEffectTransform>()},
        {Id::Mask, convertMask},
        {Id::Transpose, video<Transpose, Proc::SettingsEffectTransform>()},
        {Id::FishEye, video<FishEye, Proc::SettingsEffectFishEye>()},
        {Id::ColorBrush, video<ColorBrush, Proc::SettingsEffectColorBrush>()},
        {Id::FilmStrip, video<FilmStrip, Proc::SettingsEffectFilmStrip>()},
        {Id::ColorFilter, video<ColorFilter, Proc::SettingsEffectColorFilter>()},
        {Id::ColorMixBurn, video<ColorMixBurn, Proc::SettingsEffectColorMixBurn>()},
        {Id::ColorSelect, video<ColorSelect, Proc::SettingsEffectColorSelect>()},
        {Id::ColorMixExchange, video<ColorMixExchange, Proc::SettingsEffectColorMixExchange>()},
        {Id::ColorMixField, video<ColorMixField, Proc::SettingsEffectColorMixField>()},
        {Id::MotionBlur, video<MotionBlur, Proc::SettingsEffectMotionBlur>()},
        {Id::HalfTone, video<HalfTone, Proc::SettingsEffectHalfTone>()},
        {Id::LensFlare, video<LensFlare, Proc::SettingsEffectLensFlare>()},
        {Id::LightLeaks, video<LightLeaks, Proc::SettingsEffectLightLeaks>()},
        {Id::VignetteFilter, video<VignetteFilter, Proc::SettingsEffectVignetteFilter>()},
        {Id::FixVertVideo, video<FixVertVideo, Proc::SettingsEffectFixVertVideo>()},
        {Id::ChromaticAberration, video<ChromaticAberration, Proc::SettingsEffectChromaticAberration>()},
        {Id::GlitchSecurityCam, video<GlitchSecurityCam, Proc::SettingsEffectGlitchSecurityCam>()},
        {Id::GlitchMpeg, video<GlitchMpeg, Proc::SettingsEffectGlitchMpeg>()},
        {Id::Television70s, video<Television70s, Proc::SettingsEffectTelevision70s>()},
        {Id::LensDistortion, video<LensDistortion, Proc::SettingsEffectLensDistortion>()},
        {Id::ExternalShader,
            video<ExternalShader, Proc::SettingsEffectTemplateQES>(Stage::openGl, Proc::ImplNames::OGL)},
        {Id::Overlay, video<Overlay, Proc::SettingsEffectColorBlender>()},
        {Id::ColorBlending, video<ColorBlending, Proc::SettingsEffectColorBlender>()},
        {Id::AlphaInserter,
            bareVideo<AlphaInserter, Proc::SettingsEffectAlphaInserter>(Stage::openGl, Proc::ImplNames::OGL)},
        {Id::Lut, video<Lut, Proc::SettingsEffectLUT>()},
        {Id::ShaderISF, video<ShaderISF, Proc::SettingsEffectISF>()},
    };
    return lookUp(table, effect, VideoContext(params, m_impl->caches));
}

EffectSettings SettingsFactory::createAudioEffectSettings(Object const & effect, AudioParams const & params)
{
    static Table<AudioParams> const table{
        {Id::AudioEqualizer, audio<AudioEqualizer, Proc::SettingsAudioEqualizer>()},
        {Id::AudioRadio, audio<AudioRadio, Proc::SettingsAudioRadio>()},
        {Id::AudioPhone, audio<AudioPhone, Proc::SettingsAudioEqualizer>()},
        {Id::AudioMuffle, audio<AudioMuffle, Proc::SettingsAudioEqualizer>()},
        {Id::AudioEcho, audio<AudioEcho, Proc::SettingsAudioEcho>()},
        {Id::AudioPitch, audio<AudioPitch, Proc::SettingsAudioPitch>()},
        {Id::AudioRobot, audio<AudioRobot, Proc::SettingsAudioRobot>()},
        {Id::Distortion, audio<AudioDistortion, Proc::SettingsAudioDistortion>()},
        {Id::Reverb, audio<AudioReverb, Proc::SettingsAudioReverberationImpulseResponse>()},
        {Id::NoiseGate, audio<AudioNoiseGate, Proc::SettingsAudioGate>()},
        {Id::Compressor, audio<AudioCompressor, Proc::SettingsAudioCompressor>()},
        {Id::Flanger, audio<AudioFlanger, Proc::SettingsAudioFlanger>()},
        {Id::Vibrato, audio<AudioVibrato, Proc::SettingsAudioVibrato>()},
        {Id::NoiseSuppress, audio<AudioNoiseSuppress, Proc::SettingsAudioNoiseSuppress>(Proc::ImplNames::SPEEX)},
        {Id::AudioMonoChannel, audio<AudioMonoChannel, Proc::SettingsFilterResample>()},
    };
    return lookUp(table, effect, params);
}

} // namespace Effect::Factory
