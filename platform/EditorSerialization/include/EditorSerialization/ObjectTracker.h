/// @file
/// An archive that records which objects it reached and writes nothing.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <unordered_map>

#include <boost/archive/detail/common_oarchive.hpp>
#include <boost/archive/detail/register_archive.hpp>
#include <boost/serialization/nvp.hpp>

#include <EditorSerialization/Classes.h>
#include <EditorSerialization/ISerializable.h>
#include <EditorSerialization/Traversal.h>

namespace Serialize {

/// Walks an object as the archives do and records each object that it reaches through a pointer or a reference, and
/// how. An object that is reached in two conflicting ways is refused with a `std::runtime_error`;
/// the entries recorded so far stay.
///
/// The tracker never releases anything by itself.
class EDITORSERIALIZATION_EXPORT ObjectTracker : public boost::archive::detail::common_oarchive<ObjectTracker>
{
    using Framework = boost::archive::detail::common_oarchive<ObjectTracker>;
    friend class boost::archive::detail::interface_oarchive<ObjectTracker>;
    friend class boost::archive::save_access;

public:
    /// How an object was reached. The numbers never change.
    enum class Kind : std::int32_t
    {
        Unknown = 0,
        Reference = 1,    ///< reached by reference
        OwnedPointer = 2, ///< reached by pointer; the entry can release the object
        Pointer = 3,      ///< reached by pointer; the object has another owner
    };

    /// The record of one object.
    struct Entry
    {
        Kind kind = Kind::Unknown;     ///< how it was reached first
        bool saved = false;            ///< whether its content has been walked
        std::function<void()> release; ///< deletes the object; empty unless the kind is `OwnedPointer`
        bool held = false;             ///< another object that was walked owns it and deletes it with itself
    };

    using Entries = std::unordered_map<void const *, Entry>; ///< by the address of the whole object

    ObjectTracker();
    ~ObjectTracker() override;

    /// The objects reached so far, by address.
    Entries const & entries() const { return m_entries; }

    /// With the flag set, a pointer newly found becomes `Pointer` instead of `OwnedPointer`.
    void setForeign(bool foreign) { m_foreign = foreign; }
    bool isForeign() const { return m_foreign; } ///< the flag

    /// Marks an object as foreign before a pointer to it is walked, so that it gets no release function.
    void forceForeign(void const * object);

    /// Takes ownership of an object as if a pointer to it had been walked with the flag clear, whatever its entry was.
    void own(ISerializable const * object);

    /// Deletes the objects that were reached by pointer, through their release functions, and forgets every entry. An
    /// object that another one holds is left to its holder, whether or not that one is released here.
    void releaseAll();

    /// Forgets every entry and releases nothing.
    void clear() { m_entries.clear(); }

    /// @{
    /// An entry point of the framework; not to be called directly.
    void register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer);
    void save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer);
    void save_pointer(void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer);
    void end_preamble() {}
    /// @}

private:
    template <class T> void save(T const &) {}

    template <class T> void save_override(T const & value)
    {
        if constexpr (std::is_pointer_v<T>)
            save_impl(value);
        else
            Framework::save_override(value);
    }
    template <class T> void save_override(boost::serialization::nvp<T> const & value)
    {
        save_override(value.const_value());
    }
    void save_override(QString const &) {}
    void save_override(std::string const &) {}
    template <class T> void save_override(std::unique_ptr<T> const & object)
    {
        // A field or an element of the object being walked, or a variable of the caller outside of objects.
        if (object && m_walked)
            m_entries[dynamic_cast<void const *>(object.get())].held = true;
        save_impl(object.get());
    }
    template <class T> void save_override(std::optional<T> const & value)
    {
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
        // Counts are values on the stack, whose address may be that of a recorded object.
        std::size_t const count = elements.size();
        checkCount(&count);
        std::uint32_t const itemVersion = 0;
        checkCount(&itemVersion);
        for (T const & element : elements)
            save_override(element);
    }

    template <class T> void save_impl(T const * object)
    {
        static_assert(std::is_base_of_v<ISerializable, T>, "pointers to objects only");
        if (!object)
            return;
        // Objects are known by the address of the whole, whichever base the pointer is to.
        void const * const address = dynamic_cast<void const *>(object);
        Entry & entry = m_entries[address];
        if (entry.kind == Kind::Unknown) {
            entry.kind = m_foreign ? Kind::Pointer : Kind::OwnedPointer;
            if (!m_foreign)
                entry.release = [object] { delete object; };
        }
        // The entry is made before the class is looked up, so it stays if the class is not registered.
        savePointed(address, m_classes.ofObject(*object));
    }
    void savePointed(void const * object, Detail::OutputClass const & type);
    void walk(void const * object, Detail::OutputClass const & type);
    void checkCount(void const * count);

    Entries m_entries;
    bool m_foreign = false;
    Detail::OutputClasses<ObjectTracker> m_classes;
    void const * m_walked = nullptr; // the object whose content is being walked
    int m_depth = 0;
};

} // namespace Serialize

BOOST_SERIALIZATION_REGISTER_ARCHIVE(Serialize::ObjectTracker)
