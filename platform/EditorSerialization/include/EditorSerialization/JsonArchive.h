/// @file
/// The readable archives: one JSON document with keyed values.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <boost/archive/detail/common_iarchive.hpp>
#include <boost/archive/detail/common_oarchive.hpp>
#include <boost/archive/detail/register_archive.hpp>
#include <boost/serialization/nvp.hpp>
#include <nlohmann/json_fwd.hpp>

#include <EditorSerialization/Classes.h>
#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Traversal.h>

namespace Serialize::Json {

/// Keys of the meta object, which holds everything that is not a field.
namespace MetaDetails {
inline constexpr char const * s_meta = "$meta";       ///< the meta object itself
inline constexpr char const * s_class_name = "class"; ///< archive name of the object's class
inline constexpr char const * s_id = "id";            ///< number of an object that is referred to
inline constexpr char const * s_reference = "ref";    ///< number of the referenced object
} // namespace MetaDetails

/// Maximum nesting of arrays and objects. Objects nested up to `maxObjectDepth` stay below it.
inline constexpr int maxDocumentDepth = 256;

/// Parses a JSON text. Throws an `ArchiveError` that names line, column and JSON pointer, for a text that is nested too
/// deep as well.
EDITORSERIALIZATION_EXPORT nlohmann::json parse(std::string_view text);

/// The number of the object that `value` refers to; nothing when it is no reference.
EDITORSERIALIZATION_EXPORT std::optional<std::int64_t> getReferenceObjectId(nlohmann::json const & value);

/// Scalars. A double that is not finite is one of the strings "Infinity", "-Infinity", "NaN"; a null text is null;
/// a text that is no Unicode is `{"$utf16": [units]}`, bytes that are no UTF-8 are `{"$bytes": "<base64>"}`.
/// A value of the wrong type or out of range throws an `ArchiveError` that says what was expected.
namespace Detail {
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, std::string const & text);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, QString const & text);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, bool flag);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, double number);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, int number);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, unsigned number);
EDITORSERIALIZATION_EXPORT void save(nlohmann::json & value, std::int64_t number);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, std::string & text);
/// If the text is equal to the old one, the old one keeps its storage.
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, QString & text);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, bool & flag);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, double & number);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, int & number);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, unsigned & number);
EDITORSERIALIZATION_EXPORT void load(nlohmann::json const & value, std::int64_t & number);
} // namespace Detail

/// Writes into a document, which must outlive the archive. A value takes the place of the document, a value with a key
/// (`archive << field("key", value)`) the place of what the document has under that key. A save that throws leaves the
/// document as it was.
///
/// Throws `boost::archive::archive_exception`: code 2 for an unregistered class or one without an archive name, 10 for
/// an unregistered cast.
class EDITORSERIALIZATION_EXPORT oarchive : public boost::archive::detail::common_oarchive<oarchive>
{
    using Framework = boost::archive::detail::common_oarchive<oarchive>;
    friend class boost::archive::detail::interface_oarchive<oarchive>;
    friend class boost::archive::save_access;

public:
    /// @param document  left as it is until something is saved
    explicit oarchive(nlohmann::json & document);
    ~oarchive() override;

    /// Saves a value. Hides the operator of the framework, which also saves the parts of a value.
    template <class T> oarchive & operator<<(T const & value)
    {
        if (isSaving())
            save_override(value);
        else
            saveWhole(nullptr, value);
        return *this;
    }
    /// Saves a value under its key.
    template <class T> oarchive & operator<<(boost::serialization::nvp<T> const & value)
    {
        if (isSaving())
            save_override(value);
        else
            saveWhole(value.name(), value.const_value());
        return *this;
    }

    /// The value being filled; the document, while nothing is being saved.
    nlohmann::json & head() { return *m_stack.back(); }

    /// @{
    /// An entry point of the framework; not to be called directly.
    void register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer);
    void save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer);
    void save_pointer(void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer);
    void end_preamble() {}
    /// @}

private:
    /// A value that is built separately and moved into the document when complete.
    class EDITORSERIALIZATION_EXPORT Draft
    {
    public:
        explicit Draft(oarchive & archive);
        ~Draft();
        Draft(Draft const &) = delete;
        Draft & operator=(Draft const &) = delete;
        /// @param key  where the value goes in the document; null to make it the document
        void keep(char const * key);

    private:
        oarchive & m_archive;
        std::unique_ptr<nlohmann::json> m_value;
    };

    bool isSaving() const { return m_stack.size() > 1; }
    template <class T> void saveWhole(char const * key, T const & value)
    {
        Draft draft(*this);
        save_override(value);
        draft.keep(key);
    }
    template <class T> void saveWhole(char const * key, std::optional<T> const & value)
    {
        if (value)
            saveWhole(key, *value);
        else
            forget(key);
    }
    void forget(char const * key);

    // The framework's own records are classes too; they are not written to documents.
    template <class T> void save([[maybe_unused]] T const & value)
    {
        if constexpr (!std::is_class_v<T>)
            Detail::save(head(), value);
    }

    template <class T> void save_override(T const & value)
    {
        if constexpr (std::is_pointer_v<T>)
            saveObject(value);
        else
            Framework::save_override(value);
    }
    template <class T> void save_override(boost::serialization::nvp<T> const & value)
    {
        if (!value.name())
            return save_override(value.const_value());
        push(value.name());
        save_override(value.const_value());
        m_stack.pop_back();
    }
    template <class T> void save_override(boost::serialization::nvp<std::optional<T>> const & value)
    {
        // An absent value has no key.
        if (value.const_value())
            save_override(boost::serialization::make_nvp(value.name(), *value.value()));
    }
    void save_override(QString const & text);
    void save_override(std::string const & text);
    void save_override(std::nullptr_t) {} // null is what a value is until it is filled
    template <class T> void save_override(std::unique_ptr<T> const & object) { saveObject(object.get()); }
    template <class T, std::size_t N> void save_override(std::array<T, N> const & values) { saveElements(values); }
    template <class T> void save_override(std::deque<T> const & elements) { saveElements(elements); }

    template <class Elements> void saveElements(Elements const & elements)
    {
        beginArray(elements.size());
        for (auto const & element : elements) {
            pushElement();
            save_override(element);
            m_stack.pop_back();
        }
    }
    template <class T> void saveObject(T const * object)
    {
        static_assert(std::is_base_of_v<ISerializable, T>, "pointers to objects only");
        if (object)
            savePointed(dynamic_cast<void const *>(object), m_classes.ofObject(*object));
    }
    void savePointed(void const * object, Serialize::Detail::OutputClass const & type);
    void saveData(void const * object, Serialize::Detail::OutputClass const & type);
    void push(char const * key);
    void beginArray(std::size_t size);
    void pushElement();

    std::vector<nlohmann::json *> m_stack; // the document, then the values that are being filled; the top is the head
    Serialize::Detail::OutputClasses<oarchive> m_classes;
    int m_depth = 0;
};

/// Reads from a document, which must outlive the archive. Absent keys leave their fields unchanged, unknown keys are
/// ignored.
///
/// Throws `ArchiveError` with a text that says what is wrong and where, as a JSON pointer into the document ("at
/// /Effect::VideoEffect/color"), code 2 for a class that is not registered; and `std::out_of_range` for a reference to
/// an object that the document does not hold. The object being read keeps what was read so far.
class EDITORSERIALIZATION_EXPORT iarchive : public boost::archive::detail::common_iarchive<iarchive>
{
    using Framework = boost::archive::detail::common_iarchive<iarchive>;
    friend class boost::archive::detail::interface_iarchive<iarchive>;
    friend class boost::archive::load_access;

public:
    /// @param document  as `parse` gives it
    explicit iarchive(nlohmann::json const & document);
    ~iarchive() override;

    /// The value being read.
    nlohmann::json const & head() const { return *m_stack.back().value; }

    /// @{
    /// An entry point of the framework; not to be called directly.
    void register_basic_serializer(boost::archive::detail::basic_iserializer const & serializer);
    void load_object(void * object, boost::archive::detail::basic_iserializer const & serializer);
    /// @}

private:
    struct Level
    {
        nlohmann::json const * value;
        char const * key;  // null for an element of an array
        std::size_t index; // of an element of an array
        bool followed;     // reached through a reference
    };

    /// Enters a value for its lifetime.
    class Inside
    {
    public:
        Inside(iarchive & archive, Level const & level)
            : m_archive(archive)
        {
            archive.enter(level);
        }
        ~Inside() { m_archive.leave(); }
        Inside(Inside const &) = delete;
        Inside & operator=(Inside const &) = delete;

    private:
        iarchive & m_archive;
    };

    // The framework's own records are classes too; documents do not contain them.
    template <class T> void load([[maybe_unused]] T & value)
    {
        if constexpr (!std::is_class_v<T>)
            loadScalar(value);
    }

    template <class T> void load_override(T & value)
    {
        if constexpr (std::is_pointer_v<T>)
            value = loadOwned<std::remove_pointer_t<T>>().release();
        else
            Framework::load_override(value);
    }
    template <class T> void load_override(boost::serialization::nvp<T> const & value)
    {
        if (!value.name())
            return load_override(value.value());
        nlohmann::json const * const found = find(value.name());
        if (!found)
            return;
        Inside const inside(*this, {found, value.name(), 0, false});
        load_override(value.value());
    }
    void load_override(QString & text) { loadScalar(text); }
    void load_override(std::string & text) { loadScalar(text); }
    template <class T> void load_override(std::unique_ptr<T> & object) { object = loadOwned<T>(); }
    template <class T> void load_override(std::optional<T> & value)
    {
        if (isNull())
            value.reset();
        else
            Serialize::Detail::readWhole(value, [this](T & copy) { load_override(copy); });
    }
    template <class T, std::size_t N> void load_override(std::array<T, N> & values)
    {
        if (arraySize() != N)
            fail(
                "an array of " + std::to_string(N) + " items is expected, this one has " + std::to_string(arraySize()));
        Serialize::Detail::readWhole(values, [this](std::array<T, N> & copy) {
            for (std::size_t index = 0; index < N; ++index)
                loadElement(index, copy[index]);
        });
    }
    template <class T> void load_override(std::deque<T> & elements)
    {
        std::size_t const size = arraySize();
        elements.clear();
        for (std::size_t index = 0; index < size; ++index)
            loadElement(index, elements.emplace_back());
    }

    template <class T> void loadElement(std::size_t index, T & element)
    {
        Inside const inside(*this, {elementAt(index), nullptr, index, false});
        load_override(element);
    }
    template <class T> std::unique_ptr<T> loadOwned()
    {
        static_assert(std::is_base_of_v<ISerializable, T>, "pointers to objects only");
        std::unique_ptr<ISerializable> object = loadPointed();
        T * const cast = dynamic_cast<T *>(object.get());
        if (object && !cast)
            fail("an object of the class " + object->GetNameInArchive() + " does not belong here");
        object.release();
        return std::unique_ptr<T>(cast);
    }
    std::unique_ptr<ISerializable> loadPointed();
    template <class T> void loadScalar(T & value)
    {
        try {
            Detail::load(head(), value);
        } catch (ArchiveError const & error) {
            fail(error.what());
        }
    }

    nlohmann::json const * find(char const * key) const;
    nlohmann::json const * elementAt(std::size_t index) const;
    std::size_t arraySize() const;
    bool isNull() const;
    void enter(Level const & level);
    void leave() { m_stack.pop_back(); }
    void followReferences();
    std::optional<std::int64_t> referenceHere() const;
    void follow(std::int64_t id);
    nlohmann::json const * className() const;
    std::string pointer() const;
    [[noreturn]] void fail(std::string const & problem, boost::archive::archive_exception::exception_code code =
                                                            boost::archive::archive_exception::other_exception) const;

    nlohmann::json const * m_document;
    std::vector<Level> m_stack; // the top is the head
    Serialize::Detail::InputClasses<iarchive> m_classes;
    std::unordered_map<std::int64_t, nlohmann::json const *> m_referred; // filled at the first reference
    bool m_referredKnown = false;
    std::size_t m_copied = 0; // values read through references so far
    int m_depth = 0;
};

} // namespace Serialize::Json

BOOST_SERIALIZATION_REGISTER_ARCHIVE(Serialize::Json::oarchive)
BOOST_SERIALIZATION_REGISTER_ARCHIVE(Serialize::Json::iarchive)
