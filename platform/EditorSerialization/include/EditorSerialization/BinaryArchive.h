/// @file
/// The compact archives: values by position, in the layout of the framework's binary archives.
///
/// A stream begins with the magic number "EEAR" and the framework's library version in 16 bits. Each object has its
/// class information in front, the first time its class occurs, and the numbers by which the framework tracks what
/// is reached through pointers. All numbers are in the machine's byte order.
#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

#include <boost/archive/basic_archive.hpp>
#include <boost/archive/basic_binary_iprimitive.hpp>
#include <boost/archive/basic_binary_oprimitive.hpp>
#include <boost/archive/detail/common_iarchive.hpp>
#include <boost/archive/detail/common_oarchive.hpp>
#include <boost/archive/detail/register_archive.hpp>
#include <boost/serialization/nvp.hpp>
#include <boost/serialization/string.hpp>

#include <EditorSerialization/Bytes.h>
#include <EditorSerialization/Classes.h>
#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Traversal.h>

namespace Serialize {

/// Writes the compact form. A pointer that is written twice becomes one object and a reference to it, so the objects
/// must live until the archive is done; an object written by value is written whole every time.
///
/// Throws `boost::archive::archive_exception`: code 2 for an unregistered class, 10 for an unregistered cast, 13 when
/// the stream takes fewer bytes than given.
class EDITORSERIALIZATION_EXPORT BinaryOArchive
    : public boost::archive::detail::common_oarchive<BinaryOArchive>,
      public boost::archive::basic_binary_oprimitive<BinaryOArchive, char, std::char_traits<char>>
{
    using Framework = boost::archive::detail::common_oarchive<BinaryOArchive>;
    using Primitive = boost::archive::basic_binary_oprimitive<BinaryOArchive, char, std::char_traits<char>>;
    friend class boost::archive::detail::interface_oarchive<BinaryOArchive>;
    friend class boost::archive::save_access;
    friend Primitive;

public:
    /// @param flags  `boost::archive::no_header` leaves the magic number and the version out
    explicit BinaryOArchive(std::streambuf & stream, unsigned flags = 0);
    /// Writes into the stream's buffer; the stream's state is neither checked nor set.
    explicit BinaryOArchive(std::ostream & stream, unsigned flags = 0);
    ~BinaryOArchive() override;

    /// @{
    /// An entry point of the framework; not to be called directly.
    void register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer);
    void save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer);
    void save_pointer(void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer);
    /// @}

private:
    template <class T> void save(T const & value) { m_bytes.write(value); }

    template <class T> void save_override(T const & value)
    {
        if constexpr (std::is_pointer_v<T>)
            saveObject(value);
        else
            Framework::save_override(value);
    }
    template <class T> void save_override(boost::serialization::nvp<T> const & value)
    {
        save_override(value.const_value());
    }
    void save_override(QString const & text);
    template <class T> void save_override(std::unique_ptr<T> const & object) { saveObject(object.get()); }
    template <class T> void save_override(std::optional<T> const & value)
    {
        save_override(value.has_value());
        if (value)
            save_override(*value);
    }
    template <class T, std::size_t N> void save_override(std::array<T, N> const & values)
    {
        for (T const & value : values)
            save_override(value);
    }
    template <class T> void save_override(std::deque<T> const & elements)
    {
        beginCollection(elements.size());
        for (T const & element : elements)
            save_override(element);
    }
    void save_override(boost::archive::class_name_type const & name);

    template <class T> void saveObject(T const * object)
    {
        static_assert(std::is_base_of_v<ISerializable, T>, "pointers to objects only");
        if (object)
            savePointed(dynamic_cast<void const *>(object), m_classes.ofObject(*object));
        else
            saveNull();
    }
    void savePointed(void const * object, Detail::OutputClass & type);
    void saveNull();
    void beginCollection(std::size_t count);
    void announce(Detail::OutputClass & type);
    void saveData(void const * object, Detail::OutputClass const & type);

    ByteWriter m_bytes;
    Detail::OutputClasses<BinaryOArchive> m_classes;
    std::uint32_t m_objectCount = 0;
    std::unordered_map<void const *, std::uint32_t> m_pointed; // number of each object written through a pointer
    int m_depth = 0;
};

namespace Detail {

/// The object, released from its owner, as a `T`; throws if it is of another class.
template <class T, class Loaded> T * castTo(Loaded & loaded, ByteReader const & bytes)
{
    ISerializable * const object = loaded.shared ? loaded.shared : loaded.object.get();
    if (!object)
        return nullptr;
    T * const cast = dynamic_cast<T *>(object);
    if (!cast)
        bytes.fail("an object of the class " + object->GetNameInArchive() + " does not belong here");
    loaded.object.release();
    return cast;
}

} // namespace Detail

/// Reads the compact form, from any source: every number is checked before it is used, and what a read created is
/// released when the read fails.
///
/// Throws `ArchiveError`: code 8 when the stream ends too early, 2 for a class that is not registered, and others
/// with a text that says what is wrong and at which byte. The object being read keeps what was read so far.
class EDITORSERIALIZATION_EXPORT BinaryIArchive
    : public boost::archive::detail::common_iarchive<BinaryIArchive>,
      public boost::archive::basic_binary_iprimitive<BinaryIArchive, char, std::char_traits<char>>
{
    using Framework = boost::archive::detail::common_iarchive<BinaryIArchive>;
    using Primitive = boost::archive::basic_binary_iprimitive<BinaryIArchive, char, std::char_traits<char>>;
    friend class boost::archive::detail::interface_iarchive<BinaryIArchive>;
    friend class boost::archive::load_access;
    friend Primitive;

public:
    /// @param flags  `boost::archive::no_header` expects neither magic number nor version
    explicit BinaryIArchive(std::streambuf & stream, unsigned flags = 0);
    /// Reads from the stream's buffer; the stream's state is neither checked nor set.
    explicit BinaryIArchive(std::istream & stream, unsigned flags = 0);
    ~BinaryIArchive() override;

    /// From now on, an error in an object behind a pointer does not throw: the object and its owners are kept as far
    /// as they were read, and reading stops. `failure` then returns the error.
    void keepWhatIsRead() { m_keepsWhatIsRead = true; }
    /// The error that stopped reading, if any.
    std::optional<ArchiveError> const & failure() const { return m_failure; }

    /// @{
    /// An entry point of the framework; not to be called directly.
    void register_basic_serializer(boost::archive::detail::basic_iserializer const & serializer);
    void load_object(void * object, boost::archive::detail::basic_iserializer const & serializer);
    /// @}

private:
    template <class T> void load(T & value) { m_bytes.read(value); }

    template <class T> void load_override(T & value)
    {
        if constexpr (std::is_pointer_v<T>)
            loadObject(value);
        else
            Framework::load_override(value);
    }
    template <class T> void load_override(boost::serialization::nvp<T> const & value) { load_override(value.value()); }
    void load_override(QString & text) { m_bytes.read(text); }
    template <class T> void load_override(std::unique_ptr<T> & object)
    {
        Loaded loaded = loadPointed();
        if (loaded.shared)
            m_bytes.fail("an object that is owned elsewhere is referred to");
        object.reset(Detail::castTo<T>(loaded, m_bytes));
    }
    template <class T> void load_override(std::optional<T> & value)
    {
        bool present = false;
        load(present);
        if (present)
            Detail::readWhole(value, [this](T & copy) { load_override(copy); });
        else
            value.reset();
    }
    template <class T, std::size_t N> void load_override(std::array<T, N> & values)
    {
        Detail::readWhole(values, [this](std::array<T, N> & copy) {
            for (T & value : copy)
                load_override(value);
        });
    }
    template <class T> void load_override(std::deque<T> & elements)
    {
        std::uint64_t const count = beginCollection();
        // Only now, so that a stream that ends in the count leaves the list unchanged.
        elements.clear();
        // Not reserved, since the count is not trusted until the elements follow.
        for (std::uint64_t left = count; left > 0; --left)
            loadElement(elements);
    }
    template <class T> void loadElement(std::deque<T> & elements)
    {
        try {
            load_override(elements.emplace_back());
        } catch (...) {
            // The list was written with an object here, so an empty slot is an error.
            if (Detail::IsOwningPointer<T>::value && m_keepsWhatIsRead)
                elements.pop_back();
            throw;
        }
    }
    void load_override(boost::archive::class_name_type & name);

    /// The target of a pointer: a new object, or that of an earlier pointer.
    struct Loaded
    {
        std::unique_ptr<ISerializable> object;
        ISerializable * shared = nullptr;
    };

    template <class T> void loadObject(T *& object)
    {
        static_assert(std::is_base_of_v<ISerializable, T>, "pointers to objects only");
        Loaded loaded = loadPointed();
        object = Detail::castTo<T>(loaded, m_bytes);
    }
    Loaded loadPointed();
    std::uint64_t beginCollection();
    void readClassInformation(Detail::InputClass & type);
    bool isNewObject(std::uint32_t & number);

    ByteReader m_bytes;
    Detail::InputClasses<BinaryIArchive> m_classes;
    /// By number; null for objects read by value or only in part, to which no reference is allowed.
    std::vector<ISerializable *> m_objects;
    int m_depth = 0;
    bool m_keepsWhatIsRead = false;
    std::optional<ArchiveError> m_failure;
};

} // namespace Serialize

BOOST_SERIALIZATION_REGISTER_ARCHIVE(Serialize::BinaryOArchive)
BOOST_SERIALIZATION_REGISTER_ARCHIVE(Serialize::BinaryIArchive)
