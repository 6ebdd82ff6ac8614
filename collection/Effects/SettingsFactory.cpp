#include <collection/Effects/SettingsFactory.h>

#include <string>
#include <typeinfo>
#include <utility>

#include <boost/core/demangle.hpp>

#include <collection/Effects/Conversions.h>
#include <collection/Effects/FactoryCaches.h>

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

namespace {

Conversions conversionsOfAllFamilies()
{
    Conversions table;
#define CONVERTED_FAMILY(family) add##family(table);
#include <effects/Families.def>
    return table;
}

template <class Params>
EffectSettings lookUp(ConversionTable<Params> const & table, Object const & effect, Params const & params)
{
    auto const found = table.constFind(effect.id);
    // A descriptor's class is never in the table, so an exact match saves a `dynamic_cast`.
    bool const isConverted = found != table.constEnd() && *found->effectClass == typeid(effect);
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
    static ConversionTable<VideoContext> const table = conversionsOfAllFamilies().video;
    return lookUp(table, effect, VideoContext(params, m_impl->caches));
}

EffectSettings SettingsFactory::createAudioEffectSettings(Object const & effect, AudioParams const & params)
{
    static ConversionTable<AudioParams> const table = conversionsOfAllFamilies().audio;
    return lookUp(table, effect, params);
}

} // namespace Effect::Factory
