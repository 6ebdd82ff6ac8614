#include <EditorSerialization/Registry.h>

#include <map>
#include <mutex>
#include <shared_mutex>

#include <glog/logging.h>

namespace Serialize {

namespace {

struct Classes
{
    std::shared_mutex mutex;
    std::map<std::string_view, BaseCreator const *> creators;
};

// Never destroyed: registrators of libraries that are unloaded late still come here.
Classes & classes()
{
    static auto & classes = *new Classes;
    return classes;
}

} // namespace

BaseCreator::~BaseCreator() = default;

Registrator::Registrator(char const * name, BaseCreator const * creator)
    : m_name(name)
    , m_creator(creator)
{
    std::unique_lock const lock(classes().mutex);
    m_isFirst = classes().creators.emplace(name, creator).second;
    if (!m_isFirst) {
        LOG(ERROR) << "The archive name " << name << " is registered twice. The first registration stays";
        m_creator.reset();
    }
}

Registrator::~Registrator()
{
    if (!m_isFirst)
        return;
    std::unique_lock const lock(classes().mutex);
    classes().creators.erase(m_name);
}

namespace Registry {

std::unique_ptr<ISerializable> create(std::string_view archiveName)
{
    std::shared_lock const lock(classes().mutex);
    auto const found = classes().creators.find(archiveName);
    if (found == classes().creators.end() || !found->second)
        return nullptr;
    return std::unique_ptr<ISerializable>(found->second->create());
}

std::vector<std::string> names()
{
    std::shared_lock const lock(classes().mutex);
    std::vector<std::string> names;
    for (auto const & [name, creator] : classes().creators)
        names.emplace_back(name);
    return names;
}

} // namespace Registry

} // namespace Serialize
