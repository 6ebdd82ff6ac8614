#include <EditorSerialization/JsonArchive.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>

#include <boost/archive/impl/archive_serializer_map.ipp>
#include <nlohmann/json.hpp>

#include <EditorSerialization/JsonTree.h>
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

// References may multiply: a short document can refer to one object many times, and that object to another. This is the
// limit of values read through references, the length of texts included.
constexpr std::size_t maxCopied = std::size_t(1) << 24;

/// The value of a key; null when there is none. The text is a view since the comparisons would each measure a `char *`.
json const * member(json const & value, std::string_view key)
{
    auto const found = value.find(key);
    return found == value.end() ? nullptr : &*found;
}

/// The value of a key of the meta object; null if there is none.
json const * metaMember(json const & value, std::string_view key)
{
    json const * const meta = member(value, s_meta);
    return meta ? member(*meta, key) : nullptr;
}

/// "line 2, column 7" of a byte, both counted from 1 and the column in bytes.
std::string lineAndColumn(std::string_view text, std::size_t offset)
{
    std::string_view const before = text.substr(0, offset);
    std::size_t const lineStart = before.rfind('\n') + 1; // 0 when there is none
    return "line " + std::to_string(1 + std::count(before.begin(), before.end(), '\n')) + ", column " +
           std::to_string(1 + before.size() - lineStart);
}

/// How messages show a JSON pointer. That of the whole document is empty.
std::string place(std::string const & pointer)
{
    return "at " + (pointer.empty() ? "/" : pointer);
}

[[noreturn]] void failAt(std::string const & pointer, std::string const & problem,
    ArchiveError::exception_code code = ArchiveError::other_exception)
{
    throw ArchiveError(code, problem + ", " + place(pointer));
}

/// The pointer of a value within the document, which is known by its address.
std::string pointerTo(json const & document, json const & sought)
{
    struct Level
    {
        json const * value;
        json::const_iterator next;
    };
    std::vector<Level> levels;
    for (json const * value = &document; value != &sought; value = &*levels.back().next++) {
        if (value->is_structured())
            levels.push_back({value, value->begin()});
        while (!levels.empty() && levels.back().next == levels.back().value->end())
            levels.pop_back();
        if (levels.empty())
            return {};
    }
    std::string pointer;
    for (Level const & level : levels) {
        auto const entered = std::prev(level.next);
        pointer += level.value->is_array() ? pointerStep(static_cast<std::size_t>(entered - level.value->begin()))
                                           : pointerStep(entered.key());
    }
    return pointer;
}

/// Builds the tree of a text, as the library's own builder does, counts the depth on the way, and knows the place of
/// what it cannot read.
class TreeBuilder
{
public:
    TreeBuilder(std::string_view text, json & root)
        : m_text(text)
        , m_root(root)
    {}

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
        auto & object = m_open.back().value->get_ref<json::object_t &>();
        m_open.back().slot = object.emplace_hint(object.end(), std::move(key), nullptr);
        return true;
    }
    bool end_object() { return close(); }
    bool start_array(std::size_t) { return open(json::value_t::array); }
    bool end_array() { return close(); }
    /// @param end    bytes of the text up to the end of what cannot be read
    /// @param token  what cannot be read
    bool parse_error(std::size_t end, std::string const & token, nlohmann::detail::exception const & error)
    {
        // Of all errors, a number that no double holds is the one whose message does not say where it is.
        constexpr int numberOverflow = 406;
        std::string problem = error.what();
        problem.erase(0, problem.find("] ") + 2); // "[json.exception.parse_error.101] parse error at line 1, ..."
        if (error.id == numberOverflow)
            problem = "the number " + token + " is out of range, " + lineAndColumn(m_text, end - token.size());
        failAt(pointer(), "this is no JSON: " + problem, ArchiveError::input_stream_error);
    }

private:
    using Slot = json::object_t::iterator;
    struct Open
    {
        json * value;
        Slot slot; // of an object: the key that was read last; its end before the first key
    };

    json & slot()
    {
        if (m_open.empty())
            return m_root;
        json & top = *m_open.back().value;
        return top.is_array() ? top.emplace_back() : m_open.back().slot->second;
    }
    template <class T> bool put(T && value)
    {
        slot() = std::forward<T>(value);
        return true;
    }
    bool open(json::value_t type)
    {
        if (m_open.size() == maxDocumentDepth)
            failAt(pointer(), "the JSON text is nested more than " + std::to_string(maxDocumentDepth) + " deep, " +
                                  lineAndColumn(m_text, tooDeepAt()));
        json & opened = slot();
        opened = json(type);
        m_open.push_back({&opened, type == json::value_t::object ? opened.get_ref<json::object_t &>().end() : Slot()});
        return true;
    }
    bool close()
    {
        m_open.pop_back();
        return true;
    }

    /// Of the value that is being read.
    std::string pointer() const
    {
        std::string pointer;
        for (Open const & level : m_open) {
            // The innermost array has no element yet for the value that is being read.
            if (level.value->is_array())
                pointer += pointerStep(level.value->size() - (&level == &m_open.back() ? 0 : 1));
            else if (level.slot != level.value->get_ref<json::object_t const &>().end())
                pointer += pointerStep(level.slot->first);
        }
        return pointer;
    }

    /// The offset of the bracket that opens one level too many. The text before it has been parsed, so that brackets
    /// and quotation marks are balanced.
    std::size_t tooDeepAt() const
    {
        int depth = 0;
        bool isInString = false;
        std::size_t offset = 0;
        for (; depth <= maxDocumentDepth; ++offset) {
            char const unit = m_text[offset];
            if (isInString && unit == '\\')
                ++offset;
            else if (unit == '"')
                isInString = !isInString;
            else if (!isInString && (unit == '[' || unit == '{'))
                ++depth;
            else if (!isInString && (unit == ']' || unit == '}'))
                --depth;
        }
        return offset - 1;
    }

    std::string_view m_text;
    json & m_root;
    std::vector<Open> m_open; // every array and object that is open
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
        std::int64_t number = 0;
        try {
            Detail::load(*id, number);
        } catch (ArchiveError const & error) {
            failAt(pointerTo(document, *id), error.what());
        }
        auto const [known, isNew] = objects.emplace(number, &value);
        if (!isNew)
            throw ArchiveError(ArchiveError::other_exception,
                "two objects of the document have the number " + id->dump() + ", " + place(pointerTo(document, value)) +
                    " and " + place(pointerTo(document, *known->second)));
    }
    return objects;
}

/// The text of a string, for a message. It is not dumped: a document that was built by hand may hold any bytes.
std::string quoted(json const & text)
{
    return '"' + text.get_ref<std::string const &>() + '"';
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
        throw ArchiveError(ArchiveError::input_stream_error,
            "this is no JSON: byte " + std::to_string(place + 1) + " is zero, " + lineAndColumn(text, place));
    json document;
    TreeBuilder builder(text, document);
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
    // The name is optional where the class is known; if present, it must be right.
    Serialize::Detail::InputClass const & type = m_classes.of(serializer);
    json const * const name = className();
    if (name && name->get_ref<std::string const &>() != type.name)
        fail("an object of the class " + std::string(type.name) + " is expected, found " + quoted(*name));
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
        fail("unregistered class - " + quoted(*name), boost::archive::archive_exception::unregistered_class);
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

void iarchive::enter(Level const & level)
{
    m_stack.push_back(level);
    try {
        followReferences();
    } catch (...) {
        m_stack.pop_back();
        throw;
    }
}

void iarchive::followReferences()
{
    Level const referrer = m_stack.back();
    // A reference may lead to another one. A chain longer than objects can nest is circular.
    for (int steps = 0; auto const id = referenceHere(); ++steps) {
        if (steps == maxObjectDepth) {
            m_stack.back() = referrer;
            fail("the references form a circle");
        }
        follow(*id);
    }
}

std::optional<std::int64_t> iarchive::referenceHere() const
{
    try {
        return getReferenceObjectId(head());
    } catch (ArchiveError const & error) {
        failAt(pointer() + pointerStep(s_meta) + pointerStep(s_reference), error.what());
    }
}

void iarchive::follow(std::int64_t id)
{
    if (!m_referredKnown) {
        m_referred = numberedObjects(*m_document);
        m_referredKnown = true;
    }
    auto const found = m_referred.find(id);
    if (found == m_referred.end())
        throw std::out_of_range("invalid map<K, T> key");
    // An object that contains itself would never end.
    int inside = 0;
    for (auto outer = m_stack.begin(); outer != std::prev(m_stack.end()); ++outer)
        inside += outer->followed ? 1 : 0;
    if (inside >= maxObjectDepth)
        fail("references are nested more than " + std::to_string(maxObjectDepth) + " deep");
    m_copied += weight(*found->second);
    if (m_copied > maxCopied)
        fail("the references of the document multiply beyond the limit");
    m_stack.back().value = found->second;
    m_stack.back().followed = true;
}

std::string iarchive::pointer() const
{
    // Whatever a reference led to has its own place in the document.
    std::size_t depth = m_stack.size() - 1;
    while (depth > 0 && !m_stack[depth].followed)
        --depth;
    std::string pointer = pointerTo(*m_document, *m_stack[depth].value);
    while (++depth < m_stack.size()) {
        Level const & level = m_stack[depth];
        pointer += level.key ? pointerStep(level.key) : pointerStep(level.index);
    }
    return pointer;
}

void iarchive::fail(std::string const & problem, boost::archive::archive_exception::exception_code code) const
{
    failAt(pointer(), problem, code);
}

} // namespace Serialize::Json
