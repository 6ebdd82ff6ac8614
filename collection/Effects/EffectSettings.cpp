#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

EffectSettings makeEffectSettings(
    std::unique_ptr<Proc::Settings> settings, std::uint8_t stageCode, std::string implementation)
{
    EffectSettings record{{}, stageCode, std::move(implementation)};
    record.settings.push_back(std::move(settings));
    return record;
}

} // namespace Effect::Factory
