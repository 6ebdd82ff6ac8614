/// @file
/// The bridge from the model to the render engine.
#pragma once

#include <memory>

#include <EditorModel/EffectFactory.h>
#include <effects/Export.h>

namespace Effect::Factory {

/// Turns effects into the settings that the render engine executes, and is the process's factory for as long as it
/// lives. What cannot be converted is logged at severity ERROR and gives an empty record; an object of another class
/// than its identifier says throws `std::bad_cast`.
///
/// The factory keeps what it has loaded (images, LUT tables, shaders) without a lock: conversions through one factory
/// must not run at the same time.
class SettingsFactory final : public IFactory
{
public:
    SettingsFactory();
    ~SettingsFactory() override;
    SettingsFactory(SettingsFactory const &) = delete;
    SettingsFactory & operator=(SettingsFactory const &) = delete;

protected:
    EffectSettings createVideoEffectSettings(Object const & effect, VideoParams const & params) override;
    EffectSettings createAudioEffectSettings(Object const & effect, AudioParams const & params) override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Effect::Factory
