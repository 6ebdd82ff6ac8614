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
    if (!classes().creators.emplace(name, creator).second) {
        LOG(ERROR) << "The archive name " << name << " is registered twice. The first registration stays";
        m_creator.reset();
    }
}

Registrator::~Registrator()
{
    std::unique_lock const lock(classes().mutex);
    auto const found = classes().creators.find(m_name);
    // A registrator that came second has nothing to take back.
    if (found != classes().creators.end() && found->first.data() == m_name)
        classes().creators.erase(found);
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
