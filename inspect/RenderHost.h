/// @file
/// The part of an editor that renders: it brings the library up and asks for settings.
#pragma once

#include <memory>
#include <optional>

#include <EditorModel/EffectFactory.h>
#include <EditorModel/ItemStorage.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// What an effect is converted for.
struct RenderParams
{
    Effect::Factory::VideoParams video; ///< for the factory's operation of video effects
    Effect::Factory::AudioParams audio; ///< for that of audio effects
    std::optional<Effect::Type> as;     ///< the operation of the factory; the effect's own type when absent
    bool isReported = false;            ///< whether `recordOf` adds a report
};

/// The library at work. One at a time. It makes a `QGuiApplication`, which pictures need, where the process has none.
class EFFECTS_INSPECT_API RenderHost
{
public:
    RenderHost(); ///< without a catalogue
    /// With the catalogue's items from `storage`, which is kept alive by the caller.
    explicit RenderHost(EditorCollection::IItemStorage & storage);
    ~RenderHost();

    /// The record of one effect: `class`, `stageCode`, `implementation`, `settings` with the setter calls in the order
    /// made and the public data members, and `log`, the errors of the factory. Where there are any, `warnings` are
    /// those of the loaders: what the effect refers to and is missing or broken. Throws a `Failure` for an effect that
    /// the factory refuses, with what was logged until then.
    nlohmann::json convert(Effect::Object const & effect, RenderParams const & params);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace Effect::Inspect
