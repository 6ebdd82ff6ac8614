#include <collection/Effects/ContentProvider.h>

#include <collection/Effects/SettingsFactory.h>

namespace Effect {

struct ContentProvider::Impl
{
    Factory::SettingsFactory factory;
};

ContentProvider::ContentProvider()
    : m_impl(std::make_unique<Impl>())
{
}

ContentProvider::~ContentProvider() = default;

} // namespace Effect
