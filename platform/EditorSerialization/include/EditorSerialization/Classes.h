/// @file
/// Classes known to an archive. For the archives of this library only.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <typeinfo>
#include <unordered_map>

#include <boost/archive/detail/archive_serializer_map.hpp>
#include <boost/archive/detail/basic_iserializer.hpp>
#include <boost/archive/detail/basic_oserializer.hpp>
#include <boost/archive/detail/basic_pointer_iserializer.hpp>
#include <boost/archive/detail/basic_pointer_oserializer.hpp>
#include <boost/serialization/extended_type_info.hpp>
#include <boost/serialization/singleton.hpp>
#include <boost/serialization/type_info_implementation.hpp>
#include <boost/serialization/void_cast.hpp>

#include <EditorSerialization/Error.h>

namespace Serialize::Detail {

/// A class known to an archive.
template <class Serializer> struct ArchiveClass
{
    Serializer const * serializer;
    std::string_view name;  ///< archive name, empty when the class has none; lives as long as the class is registered
    std::int16_t id;        ///< its place among the archive's classes
    bool tracked;           ///< when reading, as the stream says
    bool named = false;     ///< its name is in the stream, or has been read
    bool announced = false; ///< its class information is in the stream, or has been read
    unsigned version = 0;   ///< as read
};

using OutputClass = ArchiveClass<boost::archive::detail::basic_oserializer>;
using InputClass = ArchiveClass<boost::archive::detail::basic_iserializer>;

/// The classes that an archive has encountered, numbered in that order.
///
/// Every module that archives objects of a class by value has its own serializer for it. All of them are mapped to one
/// class here, that of the serializer which the class's own module registered.
template <class Archive, class Serializer, class PointerSerializer> class Classes
{
public:
    using Class = ArchiveClass<Serializer>;

    Class & of(Serializer const & serializer)
    {
        Class *& known = m_known[&serializer];
        if (!known) {
            Serializer const * const registered = find(serializer.get_eti());
            known = &ofCanonical(registered ? *registered : serializer);
        }
        return *known;
    }

    /// The class of that number; null when there is none yet.
    Class * numbered(std::int16_t id)
    {
        return id >= 0 && static_cast<std::size_t>(id) < m_classes.size() ? &m_classes[static_cast<std::size_t>(id)]
                                                                          : nullptr;
    }

    std::size_t size() const { return m_classes.size(); }

protected:
    /// The serializer that the class's own module registered; null for a class that is not registered.
    static Serializer const * find(boost::serialization::extended_type_info const & type)
    {
        auto const * const found = boost::archive::detail::archive_serializer_map<Archive>::find(type);
        return found ? &static_cast<PointerSerializer const *>(found)->get_basic_serializer() : nullptr;
    }

    /// The class of a serializer that is the registered one, or the only one there is.
    Class & ofCanonical(Serializer const & serializer)
    {
        Class *& known = m_known[&serializer];
        if (!known) {
            if (m_classes.size() > INT16_MAX)
                throw ArchiveError(ArchiveError::other_exception, "an archive holds at most 32768 classes");
            char const * const key = serializer.get_eti().get_key();
            known = &m_classes.emplace_back(Class{
                &serializer, key ? key : "", static_cast<std::int16_t>(m_classes.size()), serializer.tracking(0)});
        }
        return *known;
    }

    std::unordered_map<void const *, Class *> m_known; // by serializer, and by what the archives add

private:
    std::deque<Class> m_classes; // a deque, since its elements stay where they are
};

template <class Archive>
class OutputClasses : public Classes<Archive, boost::archive::detail::basic_oserializer,
                          boost::archive::detail::basic_pointer_oserializer>
{
public:
    /// The class that `object` really is, checked as the framework checks it: the class must be registered, and its
    /// cast from `T` as well.
    template <class T> OutputClass & ofObject(T const & object)
    {
        OutputClass *& known = this->m_known[&typeid(object)];
        if (!known)
            known = &this->ofCanonical(serializerOf(object));
        return *known;
    }

private:
    template <class T> static boost::archive::detail::basic_oserializer const & serializerOf(T const & object)
    {
        using namespace boost::serialization;
        using boost::archive::archive_exception;
        auto const & type = singleton<typename type_info_implementation<T>::type>::get_const_instance();
        extended_type_info const & declared = type;
        extended_type_info const * const actual = type.get_derived_extended_type_info(object);
        if (actual && *actual != declared && !void_downcast(*actual, declared, &object))
            throw archive_exception(
                archive_exception::unregistered_cast, actual->get_debug_info(), declared.get_debug_info());
        auto const * const serializer = actual ? OutputClasses::find(*actual) : nullptr;
        if (!serializer)
            throw archive_exception(archive_exception::unregistered_class, "derived class not registered or exported");
        return *serializer;
    }
};

template <class Archive>
class InputClasses : public Classes<Archive, boost::archive::detail::basic_iserializer,
                         boost::archive::detail::basic_pointer_iserializer>
{
public:
    /// The class with that archive name; null when no such class is registered.
    InputClass * named(std::string const & name)
    {
        auto const known = m_named.find(name);
        if (known != m_named.end())
            return known->second;
        auto const * const type = boost::serialization::extended_type_info::find(name.c_str());
        auto const * const serializer = type ? InputClasses::find(*type) : nullptr;
        if (!serializer)
            return nullptr;
        return m_named.emplace(name, &this->ofCanonical(*serializer)).first->second;
    }

private:
    std::unordered_map<std::string, InputClass *> m_named;
};

} // namespace Serialize::Detail
