/// @file
/// The interface of the factory that converts effects into settings of the render engine.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <EditorModel/Export.h>
#include <Settings/Settings.h>

namespace Effect::Factory {

/// What the render engine executes for one effect. A record without settings is empty. It owns its settings, so it can
/// be moved and not copied.
struct EffectSettings
{
    EffectSettings() = default;
    /// @param itsSettings        in the order of execution
    /// @param itsStageCode       see `stageCode`
    /// @param itsImplementation  one of `Quoril::Proc::ImplNames`
    EffectSettings(std::vector<std::unique_ptr<Quoril::Proc::Settings>> itsSettings, std::uint8_t itsStageCode,
        std::string itsImplementation)
        : settings(std::move(itsSettings))
        , stageCode(itsStageCode)
        , implementation(std::move(itsImplementation))
    {}
    EffectSettings(EffectSettings &&) = default;
    EffectSettings & operator=(EffectSettings &&) = default;
    EffectSettings(EffectSettings const &) = delete;
    EffectSettings & operator=(EffectSettings const &) = delete;

    std::vector<std::unique_ptr<Quoril::Proc::Settings>> settings; ///< in the order of execution
    std::uint8_t stageCode = 0; ///< the step of the engine that executes them; its own number
    std::string implementation; ///< one of `Quoril::Proc::ImplNames`
};

/// The render that a video effect is converted for.
struct VideoParams
{
    std::array<std::int64_t, 2> frameGeometry{}; ///< width and height in pixels
    std::int64_t duration = 0;                   ///< of the effect, in `MTime` units
};

/// The render that an audio effect is converted for.
struct AudioParams
{
    std::int32_t sampleRate = 48000; ///< samples a second
};

/// Turns effects into settings. One is installed at a time; the model reaches it through the free functions below.
class EDITORMODEL_EXPORT IFactory
{
public:
    virtual ~IFactory();

protected:
    friend EDITORMODEL_EXPORT EffectSettings videoEffectSettings(Object const & effect, VideoParams const & params);
    friend EDITORMODEL_EXPORT EffectSettings audioEffectSettings(Object const & effect, AudioParams const & params);

    /// The settings of a video effect; empty for an effect that cannot be converted.
    virtual EffectSettings createVideoEffectSettings(Object const & effect, VideoParams const & params) = 0;
    /// The same for an audio effect.
    virtual EffectSettings createAudioEffectSettings(Object const & effect, AudioParams const & params) = 0;
};

/// Installs a factory, which its owner keeps alive; null removes the installed one.
EDITORMODEL_EXPORT void setFactory(IFactory * factory);
/// The installed factory, or null.
EDITORMODEL_EXPORT IFactory * factory();

/// The installed factory's record for the effect. Throws `std::logic_error` when no factory is installed.
EDITORMODEL_EXPORT EffectSettings videoEffectSettings(Object const & effect, VideoParams const & params);
/// The same for an audio effect.
EDITORMODEL_EXPORT EffectSettings audioEffectSettings(Object const & effect, AudioParams const & params);

} // namespace Effect::Factory
