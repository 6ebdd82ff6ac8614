#include <EditorModel/EffectFactory.h>

#include <atomic>
#include <stdexcept>
#include <utility>

namespace Effect::Factory {

namespace {

std::atomic<IFactory *> installed{nullptr};

IFactory & installedFactory()
{
    IFactory * const current = installed;
    if (!current)
        throw std::logic_error("no settings factory is installed");
    return *current;
}

} // namespace

IFactory::~IFactory() = default;

void setFactory(IFactory * factory)
{
    installed = factory;
}

IFactory * factory()
{
    return installed;
}

EffectSettings videoEffectSettings(Object const & effect, VideoParams const & params)
{
    return installedFactory().createVideoEffectSettings(effect, params);
}

EffectSettings audioEffectSettings(Object const & effect, AudioParams const & params)
{
    return installedFactory().createAudioEffectSettings(effect, params);
}

} // namespace Effect::Factory
