#include <EditorSerialization/JsonArchive.h>

#include <stdexcept>

#include <boost/archive/impl/archive_serializer_map.ipp>
#include <nlohmann/json.hpp>

#include <EditorSerialization/Registry.h>

// The parts of the framework's templates that live in one module per archive type.
namespace boost::archive::detail {
template class archive_serializer_map<Serialize::Json::oarchive>;
template class archive_serializer_map<Serialize::Json::iarchive>;
} // namespace boost::archive::detail

namespace Serialize::Json {

using nlohmann::json;
using namespace MetaDetails;

namespace {

// A short document can refer to one object over and over, and that object to another. What a document says through
// references may be this many values (a text counts its length besides), and no more.
constexpr std::size_t maxCopied = std::size_t(1) << 24;

/// The value of a key; null when there is none. The text is a view since the comparisons would each measure a `char *`.
json const * member(json const & value, std::string_view key)
{
    auto const found = value.find(key);
    return found == value.end() ? nullptr : &*found;
}

/// What the meta object of a value says under a key; null when it says nothing.
json const * metaMember(json const & value, std::string_view key)
{
    json const * const meta = member(value, s_meta);
    return meta ? member(*meta, key) : nullptr;
}

/// Builds the tree of a text, as the library's own builder does, and counts the depth on the way.
class TreeBuilder
{
public:
    explicit TreeBuilder(json & root) { m_stack.push_back(&root); }

    bool null() { return put(nullptr); }
    bool boolean(bool value) { return put(value); }
    bool number_integer(json::number_integer_t value) { return put(value); }
    bool number_unsigned(json::number_unsigned_t value) { return put(value); }
    bool number_float(json::number_float_t value, json::string_t const &) { return put(value); }
    bool string(json::string_t & value) { return put(std::move(value)); }
    bool binary(json::binary_t & value) { return put(std::move(value)); }
    bool start_object(std::size_t) { return open(json::value_t::object); }
    bool key(json::string_t & key)
    {
        // The keys of a document that was written here come in order.
        auto & object = m_stack.back()->get_ref<json::object_t &>();
        m_slot = &object.emplace_hint(object.end(), std::move(key), nullptr)->second;
        return true;
    }
    bool end_object() { return close(); }
    bool start_array(std::size_t) { return open(json::value_t::array); }
    bool end_array() { return close(); }
    bool parse_error(std::size_t, std::string const &, nlohmann::detail::exception const & error)
    {
        throw ArchiveError(ArchiveError::input_stream_error, std::string("this is no JSON: ") + error.what());
    }

private:
    json & slot()
    {
        json & top = *m_stack.back();
        if (m_stack.size() == 1)
            return top;
        return top.is_array() ? top.emplace_back() : *m_slot;
    }
    template <class T> bool put(T && value)
    {
        slot() = std::forward<T>(value);
        return true;
    }
    bool open(json::value_t type)
    {
        if (m_stack.size() > maxDocumentDepth)
            throw ArchiveError(ArchiveError::other_exception,
                "the JSON text is nested more than " + std::to_string(maxDocumentDepth) + " deep");
        json & opened = slot();
        opened = json(type);
        m_stack.push_back(&opened);
        return true;
    }
    bool close()
    {
        m_stack.pop_back();
        return true;
    }

    std::vector<json *> m_stack; // the root's slot, then every array and object that is open
    json * m_slot = nullptr;     // of the key read last
};

/// Every object of the document that carries a number. Documents are walked without recursion, whatever their depth.
std::unordered_map<std::int64_t, json const *> numberedObjects(json const & document)
{
    std::unordered_map<std::int64_t, json const *> objects;
    std::vector<json const *> open{&document};
    while (!open.empty()) {
        json const & value = *open.back();
        open.pop_back();
        if (!value.is_structured())
            continue;
        for (json const & inner : value)
            open.push_back(&inner);
        json const * const id = metaMember(value, s_id);
        if (!id || !id->is_number_integer())
            continue;
        if (!objects.emplace(id->get<std::int64_t>(), &value).second)
            throw ArchiveError(
                ArchiveError::other_exception, "two objects of the document have the number " + id->dump());
    }
    return objects;
}

/// How much reading the value costs.
std::size_t weight(json const & root)
{
    std::size_t weight = 0;
    std::vector<json const *> open{&root};
    while (!open.empty() && weight <= maxCopied) {
        json const & value = *open.back();
        open.pop_back();
        weight += 1 + (value.is_string() ? value.get_ref<std::string const &>().size() : 0);
        if (value.is_structured())
            for (json const & inner : value)
                open.push_back(&inner);
    }
    return weight;
}

} // namespace

json parse(std::string_view text)
{
    // The library would take it for the end of the text.
    if (std::size_t const place = text.find('\0'); place != text.npos)
        throw ArchiveError(
            ArchiveError::input_stream_error, "this is no JSON: byte " + std::to_string(place + 1) + " is zero");
    json document;
    TreeBuilder builder(document);
    json::sax_parse(text.begin(), text.end(), &builder);
    return document;
}

std::optional<std::int64_t> getReferenceObjectId(json const & value)
{
    json const * const reference = metaMember(value, s_reference);
    if (!reference)
        return std::nullopt;
    std::int64_t id = 0;
    Detail::load(*reference, id);
    return id;
}

oarchive::oarchive(json & document)
    : m_stack{&document}
{}

oarchive::~oarchive() = default;

void oarchive::register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer)
{
    m_classes.of(serializer);
}

void oarchive::save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer)
{
    saveData(object, m_classes.of(serializer));
}

void oarchive::save_pointer(void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer)
{
    savePointed(object, m_classes.of(serializer->get_basic_serializer()));
}

void oarchive::savePointed(void const * object, Serialize::Detail::OutputClass const & type)
{
    DepthGuard const guard(m_depth);
    saveData(object, type);
}

void oarchive::saveData(void const * object, Serialize::Detail::OutputClass const & type)
{
    if (type.name.empty())
        throw boost::archive::archive_exception(
            boost::archive::archive_exception::unregistered_class, type.serializer->get_eti().get_debug_info());
    head()[s_meta][s_class_name] = type.name;
    type.serializer->save_object_data(*this, object);
}

void oarchive::save_override(QString const & text)
{
    Detail::save(head(), text);
}

void oarchive::save_override(std::string const & text)
{
    Detail::save(head(), text);
}

void oarchive::push(char const * key)
{
    // The value is made in its place: building it apart and moving it in nearly doubles the cost of a save.
    m_stack.push_back(&head()[key]);
}

void oarchive::beginArray(std::size_t size)
{
    if (head().is_null())
        head() = json::array();
    // Elements must stay where they are while they are the head.
    head().get_ref<json::array_t &>().reserve(head().size() + size);
}

void oarchive::pushElement()
{
    m_stack.push_back(&head().emplace_back());
}

iarchive::iarchive(json const & document)
    : m_document(&document)
{
    m_stack.reserve(16); // deeper than most objects
    enter({&document, nullptr, 0, false});
}

iarchive::~iarchive() = default;

void iarchive::register_basic_serializer(boost::archive::detail::basic_iserializer const & serializer)
{
    m_classes.of(serializer);
}

void iarchive::load_object(void * object, boost::archive::detail::basic_iserializer const & serializer)
{
    if (!head().is_object())
        fail(std::string("an object is expected, found ") + head().type_name());
    // The name may be left out where the class is known, but when it stands there it must be the right one.
    Serialize::Detail::InputClass const & type = m_classes.of(serializer);
    json const * const name = className();
    if (name && name->get_ref<std::string const &>() != type.name)
        fail("an object of the class " + std::string(type.name) + " is expected, found " + name->dump());
    serializer.load_object_data(*this, object, 0);
}

std::unique_ptr<ISerializable> iarchive::loadPointed()
{
    if (head().is_null())
        return nullptr;
    if (!head().is_object())
        fail(std::string("an object or null is expected, found ") + head().type_name());
    json const * const name = className();
    if (!name)
        fail("the object does not say its class");
    Serialize::Detail::InputClass const * const type = m_classes.named(name->get_ref<std::string const &>());
    std::unique_ptr<ISerializable> object = type ? Registry::create(type->name) : nullptr;
    if (!object)
        fail("unregistered class - " + name->dump(), boost::archive::archive_exception::unregistered_class);
    DepthGuard const guard(m_depth, [this](std::string const & problem) { fail(problem); });
    type->serializer->load_object_data(*this, dynamic_cast<void *>(object.get()), 0);
    return object;
}

json const * iarchive::className() const
{
    json const * const name = metaMember(head(), s_class_name);
    return name && name->is_string() ? name : nullptr;
}

json const * iarchive::find(char const * key) const
{
    json const & object = head();
    if (!object.is_object())
        fail(std::string("an object is expected, found ") + object.type_name());
    return member(object, key);
}

json const * iarchive::elementAt(std::size_t index) const
{
    return &head()[index];
}

std::size_t iarchive::arraySize() const
{
    if (!head().is_array())
        fail(std::string("an array is expected, found ") + head().type_name());
    return head().size();
}

bool iarchive::isNull() const
{
    return head().is_null();
}

void iarchive::enter(Level level)
{
    // What is referred to may refer on; more often than objects can nest it is a circle.
    for (int steps = 0; auto const id = getReferenceObjectId(*level.value);) {
oarchive::Draft::Draft(oarchive & archive)
    : m_archive(archive)
    , m_value(std::make_unique<json>())
{
    archive.m_stack.push_back(m_value.get());
}

oarchive::Draft::~Draft()
{
    // With all that was being filled when the save failed.
    m_archive.m_stack.resize(1);
}

void oarchive::Draft::keep(char const * key)
{
    json & document = *m_archive.m_stack.front();
    if (!key) {
        document = std::move(*m_value);
        return;
    }
    if (!document.is_object())
        document = json::object();
    document[key] = std::move(*m_value);
}

void oarchive::forget(char const * key)
{
    if (!key)
        head() = nullptr;
    else if (head().is_object())
        head().erase(key);
}

        if (++steps > maxObjectDepth)
            fail("the references form a circle");
        follow(level, *id);
    }
    m_stack.push_back(level);
}

void iarchive::follow(Level & level, std::int64_t id)
{
    if (!m_referredKnown) {
        m_referred = numberedObjects(*m_document);
        m_referredKnown = true;
    }
    auto const found = m_referred.find(id);
    if (found == m_referred.end())
        throw std::out_of_range("invalid map<K, T> key");
    // An object inside itself would go on for ever.
    int inside = 0;
    for (Level const & outer : m_stack)
        inside += outer.followed ? 1 : 0;
    if (inside >= maxObjectDepth)
        fail("references are nested more than " + std::to_string(maxObjectDepth) + " deep");
    m_copied += weight(*found->second);
    if (m_copied > maxCopied)
        fail("the references of the document stand for too much");
    level.value = found->second;
    level.followed = true;
}

std::string iarchive::where() const
{
    std::string path;
    for (std::size_t depth = 1; depth < m_stack.size(); ++depth) {
        Level const & level = m_stack[depth];
        path += '/';
        path += level.key ? std::string(level.key) : std::to_string(level.index);
    }
    return path.empty() ? "/" : path;
}

void iarchive::fail(std::string const & problem, boost::archive::archive_exception::exception_code code) const
{
    throw ArchiveError(code, problem + ", at " + where());
}

} // namespace Serialize::Json
