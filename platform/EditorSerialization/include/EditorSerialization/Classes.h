/// @file
/// What an archive knows of the classes that it has met. For the archives of this library only.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <type_traits>
#include <typeinfo>
#include <unordered_map>
#include <vector>

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

/// The serializer of the class that `object` really is, checked as the framework checks it: the class must be
/// registered, and its cast from `T` as well.
template <class Archive, class T>
boost::archive::detail::basic_pointer_oserializer const & pointerSerializer(T const & object)
{
    using namespace boost::serialization;
    using boost::archive::archive_exception;
    auto const & type = singleton<typename type_info_implementation<T>::type>::get_const_instance();
    extended_type_info const & declared = type;
    extended_type_info const * const actual = type.get_derived_extended_type_info(object);
    if (!actual)
        throw archive_exception(archive_exception::unregistered_class, "derived class not registered or exported");
    if (*actual != declared && !void_downcast(*actual, declared, &object))
        throw archive_exception(
            archive_exception::unregistered_cast, actual->get_debug_info(), declared.get_debug_info());
    auto const * const serializer = boost::archive::detail::archive_serializer_map<Archive>::find(*actual);
    if (!serializer)
        throw archive_exception(archive_exception::unregistered_class, "derived class not registered or exported");
    return static_cast<boost::archive::detail::basic_pointer_oserializer const &>(*serializer);
}

/// A class that is being written.
struct OutputClass
{
    boost::archive::detail::basic_oserializer const * serializer = nullptr;
    char const * name = nullptr; ///< archive name, null when the class has none
    std::int16_t id = 0;
    bool named = false;     ///< its name is in the stream
    bool announced = false; ///< its class information is in the stream
    bool tracked = false;
};

/// A class that is being read.
struct InputClass
{
    boost::archive::detail::basic_iserializer const * serializer = nullptr;
    std::string name; ///< archive name, empty when the class has none
    std::int16_t id = 0;
    bool named = false;     ///< its name has been read
    bool announced = false; ///< its class information has been read
    bool tracked = false;
    unsigned version = 0;
};

/// The classes that an output archive has met, numbered in that order.
///
/// A module that archives an object by value brings a serializer of its own for the class. All of them stand for one
/// class here, the one whose serializer the class's own module registered.
template <class Archive> class OutputClasses
{
public:
    OutputClass & of(boost::archive::detail::basic_oserializer const & serializer)
    {
        OutputClass *& known = m_known[&serializer];
        if (!known)
            known = &canonical(serializer);
        return *known;
    }

    /// The class that `object` really is.
    template <class T> OutputClass & ofObject(T const & object)
    {
        OutputClass *& known = m_known[&typeid(object)];
        if (!known)
            known = &of(pointerSerializer<Archive>(object).get_basic_serializer());
        return *known;
    }

private:
    OutputClass & canonical(boost::archive::detail::basic_oserializer const & given)
    {
        auto const * registered = boost::archive::detail::archive_serializer_map<Archive>::find(given.get_eti());
        auto const * serializer =
            registered ? &static_cast<boost::archive::detail::basic_pointer_oserializer const *>(registered)
                              ->get_basic_serializer()
                       : &given;
        if (serializer != &given)
            return of(*serializer);
        if (m_classes.size() > INT16_MAX)
            throw ArchiveError(ArchiveError::other_exception, "an archive holds at most 32768 classes");
        return m_classes.emplace_back(OutputClass{serializer, serializer->get_eti().get_key(),
            static_cast<std::int16_t>(m_classes.size()), false, false, serializer->tracking(0)});
    }

    std::deque<OutputClass> m_classes;                       // a deque, since its elements stay where they are
    std::unordered_map<void const *, OutputClass *> m_known; // by serializer and by type information
};

/// The classes that an input archive has met, numbered in that order.
template <class Archive> class InputClasses
{
public:
    InputClass & of(boost::archive::detail::basic_iserializer const & serializer)
    {
        InputClass *& known = m_known[&serializer];
        if (!known)
            known = &canonical(serializer);
        return *known;
    }

    /// The class with that archive name; null when no such class is registered.
    InputClass * named(std::string const & name)
    {
        auto const known = m_named.find(name);
        if (known != m_named.end())
            return known->second;
        auto const * type = boost::serialization::extended_type_info::find(name.c_str());
        auto const * registered = type ? boost::archive::detail::archive_serializer_map<Archive>::find(*type) : nullptr;
        if (!registered)
            return nullptr;
        InputClass & found = of(
            static_cast<boost::archive::detail::basic_pointer_iserializer const *>(registered)->get_basic_serializer());
        m_named.emplace(name, &found);
        return &found;
    }

    /// The class of that number; null when there is none yet.
    InputClass * numbered(std::int16_t id)
    {
        return id >= 0 && static_cast<std::size_t>(id) < m_classes.size() ? &m_classes[static_cast<std::size_t>(id)]
                                                                          : nullptr;
    }

    std::size_t size() const { return m_classes.size(); }

private:
    InputClass & canonical(boost::archive::detail::basic_iserializer const & given)
    {
        auto const * registered = boost::archive::detail::archive_serializer_map<Archive>::find(given.get_eti());
        auto const * serializer =
            registered ? &static_cast<boost::archive::detail::basic_pointer_iserializer const *>(registered)
                              ->get_basic_serializer()
                       : &given;
        if (serializer != &given)
            return of(*serializer);
        if (m_classes.size() > INT16_MAX)
            throw ArchiveError(ArchiveError::other_exception, "an archive holds at most 32768 classes");
        char const * key = serializer->get_eti().get_key();
        return m_classes.emplace_back(InputClass{
            serializer, key ? key : "", static_cast<std::int16_t>(m_classes.size()), false, false, false, 0});
    }

    std::deque<InputClass> m_classes;
    std::unordered_map<void const *, InputClass *> m_known;
    std::unordered_map<std::string, InputClass *> m_named;
};

} // namespace Serialize::Detail
