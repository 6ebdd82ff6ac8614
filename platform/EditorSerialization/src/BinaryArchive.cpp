#include <EditorSerialization/BinaryArchive.h>

#include <istream>
#include <ostream>

#include <boost/archive/impl/archive_serializer_map.ipp>
#include <boost/archive/impl/basic_binary_iprimitive.ipp>
#include <boost/archive/impl/basic_binary_oprimitive.ipp>

#include <EditorSerialization/Registry.h>

// The parts of the framework's templates that live in one module per archive type.
namespace boost::archive {
template class detail::archive_serializer_map<Serialize::BinaryOArchive>;
template class detail::archive_serializer_map<Serialize::BinaryIArchive>;
template class basic_binary_oprimitive<Serialize::BinaryOArchive, char, std::char_traits<char>>;
template class basic_binary_iprimitive<Serialize::BinaryIArchive, char, std::char_traits<char>>;
} // namespace boost::archive

namespace Serialize {

namespace {

// On disk: never change.
constexpr std::array<char, 4> magic{'E', 'E', 'A', 'R'};
constexpr std::int16_t nullClass = -1;
constexpr std::uint16_t lastVersionWithoutItemVersion = 3;
// As plain numbers: the framework's types convert in two ways at once.
std::uint16_t newestLibraryVersion()
{
    boost::serialization::library_version_type const version = boost::archive::BOOST_ARCHIVE_VERSION();
    return version;
}

template <class Serializer> unsigned classVersion(Serializer const & serializer)
{
    boost::archive::version_type const version = serializer.version();
    return version;
}

constexpr std::size_t longestClassName = BOOST_SERIALIZATION_MAX_KEY_SIZE - 1;

std::streambuf & buffer(std::ios & stream)
{
    if (!stream.rdbuf())
        throw ArchiveError(ArchiveError::other_exception, "the stream has no buffer");
    return *stream.rdbuf();
}

} // namespace

BinaryOArchive::BinaryOArchive(std::streambuf & stream, unsigned flags)
    : Framework(flags)
    , Primitive(stream, true)
    , m_bytes(stream)
{
    if (flags & boost::archive::no_header)
        return;
    m_bytes.write(magic);
    m_bytes.write(newestLibraryVersion());
}

BinaryOArchive::BinaryOArchive(std::ostream & stream, unsigned flags)
    : BinaryOArchive(buffer(stream), flags)
{}

BinaryOArchive::~BinaryOArchive() = default;

void BinaryOArchive::register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer)
{
    m_classes.of(serializer);
}

void BinaryOArchive::save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer)
{
    end_preamble();
    Detail::OutputClass & type = m_classes.of(serializer);
    announce(type);
    // A number of its own each time: a temporary at an address that another one had before is no reference to it.
    if (type.tracked)
        m_bytes.write(m_objectCount++);
    saveData(object, type);
}

void BinaryOArchive::save_pointer(
    void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer)
{
    savePointed(object, m_classes.of(serializer->get_basic_serializer()));
}

void BinaryOArchive::savePointed(void const * object, Detail::OutputClass & type)
{
    end_preamble();
    m_bytes.write(type.id);
    if (!type.announced && !type.named) {
        // The reader knows the class by its name from here on, and by its number afterwards.
        m_bytes.write(std::string(type.name));
        type.named = true;
    }
    announce(type);
    if (type.tracked) {
        auto const [known, isNew] = m_pointed.emplace(object, m_objectCount);
        m_bytes.write(known->second);
        if (!isNew)
            return;
        ++m_objectCount;
    }
    DepthGuard const guard(m_depth);
    saveData(object, type);
}

void BinaryOArchive::saveNull()
{
    m_bytes.write(nullClass);
}

void BinaryOArchive::announce(Detail::OutputClass & type)
{
    if (type.announced)
        return;
    m_bytes.write(type.tracked);
    m_bytes.write(classVersion(*type.serializer));
    type.announced = true;
}

void BinaryOArchive::saveData(void const * object, Detail::OutputClass const & type)
{
    type.serializer->save_object_data(*this, object);
}

void BinaryOArchive::beginCollection(std::size_t count)
{
    m_bytes.write(static_cast<std::uint64_t>(count));
    constexpr std::uint32_t itemVersion = 0;
    m_bytes.write(itemVersion);
}

void BinaryOArchive::save_override(QString const & text)
{
    end_preamble();
    m_bytes.write(text);
}

void BinaryOArchive::save_override(boost::archive::class_name_type const & name)
{
    m_bytes.write(std::string(name));
}

BinaryIArchive::BinaryIArchive(std::streambuf & stream, unsigned flags)
    : Framework(flags)
    , Primitive(stream, true)
    , m_bytes(stream)
{
    if (flags & boost::archive::no_header)
        return;
    std::array<char, 4> start{};
    m_bytes.read(start);
    if (start != magic)
        throw ArchiveError(ArchiveError::invalid_signature, "this is no binary archive: it does not begin with EEAR");
    std::uint16_t version = 0;
    m_bytes.read(version);
    if (version > newestLibraryVersion())
        throw ArchiveError(ArchiveError::unsupported_version,
            "the archive's library version is " + std::to_string(version) + ", the newest that can be read is " +
                std::to_string(newestLibraryVersion()));
    set_library_version(boost::serialization::library_version_type(version));
}

BinaryIArchive::BinaryIArchive(std::istream & stream, unsigned flags)
    : BinaryIArchive(buffer(stream), flags)
{}

BinaryIArchive::~BinaryIArchive() = default;

void BinaryIArchive::register_basic_serializer(boost::archive::detail::basic_iserializer const & serializer)
{
    m_classes.of(serializer);
}

void BinaryIArchive::load_object(void * object, boost::archive::detail::basic_iserializer const & serializer)
{
    Detail::InputClass & type = m_classes.of(serializer);
    readClassInformation(type);
    if (type.tracked) {
        std::uint32_t number = 0;
        if (!isNewObject(number))
            m_bytes.fail("object " + std::to_string(number) + " is referred to where an object is expected");
        m_objects.push_back(nullptr);
    }
    serializer.load_object_data(*this, object, type.version);
}

BinaryIArchive::Loaded BinaryIArchive::loadPointed()
{
    if (m_failure)
        throw *m_failure;
    std::int16_t id = 0;
    m_bytes.read(id);
    if (id == nullClass)
        return {};

    Detail::InputClass * type = m_classes.numbered(id);
    if (!type && static_cast<std::size_t>(id) != m_classes.size())
        m_bytes.fail("the class number " + std::to_string(id) + " is unknown");
    if (!type || (!type->announced && !type->named)) {
        std::string name;
        m_bytes.readShort(name, longestClassName);
        Detail::InputClass * const named = m_classes.named(name);
        if (!named)
            m_bytes.fail("unregistered class - \"" + name + '"', ArchiveError::unregistered_class);
        if (named->id != id)
            m_bytes.fail("the class " + name + " has another number than before");
        type = named;
        type->named = true;
    }
    readClassInformation(*type);

    std::size_t place = m_objects.size();
    if (type->tracked) {
        std::uint32_t number = 0;
        if (!isNewObject(number)) {
            if (!m_objects[number])
                m_bytes.fail("object " + std::to_string(number) + " cannot be referred to");
            return {nullptr, m_objects[number]};
        }
        m_objects.push_back(nullptr);
    }

    Loaded loaded{Registry::create(type->name), nullptr};
    if (!loaded.object)
        m_bytes.fail("unregistered class - \"" + std::string(type->name) + "\" cannot be made by name",
            ArchiveError::unregistered_class);
    DepthGuard const guard(m_depth, [this](std::string const & problem) { m_bytes.fail(problem); });
    try {
        type->serializer->load_object_data(*this, dynamic_cast<void *>(loaded.object.get()), type->version);
    } catch (ArchiveError const & error) {
        if (!m_keepsWhatIsRead)
            throw;
        m_failure.emplace(error);
    }
    if (type->tracked)
        m_objects[place] = loaded.object.get();
    return loaded;
}

void BinaryIArchive::readClassInformation(Detail::InputClass & type)
{
    if (type.announced)
        return;
    m_bytes.read(type.tracked);
    m_bytes.read(type.version);
    if (type.version > classVersion(*type.serializer))
        m_bytes.fail("the class " + std::string(type.name) + " has the version " + std::to_string(type.version),
            ArchiveError::unsupported_class_version);
    type.announced = true;
}

// Objects are numbered in the order in which they begin.
bool BinaryIArchive::isNewObject(std::uint32_t & number)
{
    m_bytes.read(number);
    if (number > m_objects.size())
        m_bytes.fail("the object number " + std::to_string(number) + " is out of order");
    return number == m_objects.size();
}

std::uint64_t BinaryIArchive::beginCollection()
{
    std::uint64_t count = 0;
    m_bytes.read(count);
    boost::serialization::library_version_type const libraryVersion = get_library_version();
    if (std::uint16_t(libraryVersion) > lastVersionWithoutItemVersion) {
        std::uint32_t itemVersion = 0;
        m_bytes.read(itemVersion);
    }
    return count;
}

void BinaryIArchive::load_override(boost::archive::class_name_type & name)
{
    std::string text;
    m_bytes.readShort(text, longestClassName);
    text.copy(name.t, text.size());
    name.t[text.size()] = '\0';
}

} // namespace Serialize
