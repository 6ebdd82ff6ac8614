#include <EditorSerialization/ObjectTracker.h>

#include <stdexcept>
#include <utility>

#include <boost/archive/impl/archive_serializer_map.ipp>
#include <boost/serialization/state_saver.hpp>

// The part of the framework's templates that lives in one module per archive type.
namespace boost::archive::detail {
template class archive_serializer_map<Serialize::ObjectTracker>;
} // namespace boost::archive::detail

namespace Serialize {

ObjectTracker::ObjectTracker() = default;

ObjectTracker::~ObjectTracker() = default;

void ObjectTracker::forceForeign(void const * object)
{
    Entry & entry = m_entries[object];
    entry.kind = Kind::Pointer;
    entry.release = nullptr;
}

void ObjectTracker::own(ISerializable const * object)
{
    Entry & entry = m_entries[dynamic_cast<void const *>(object)];
    entry = {Kind::OwnedPointer, true, [object] { delete object; }, false};
}

void ObjectTracker::releaseAll()
{
    // Moved out first, since a destructor may call this function.
    Entries const entries = std::exchange(m_entries, {});
    for (auto const & [address, entry] : entries)
        if (entry.release && !entry.held)
            entry.release();
}

void ObjectTracker::register_basic_serializer(boost::archive::detail::basic_oserializer const & serializer)
{
    m_classes.of(serializer);
}

void ObjectTracker::save_pointer(
    void const * object, boost::archive::detail::basic_pointer_oserializer const * serializer)
{
    savePointed(object, m_classes.of(serializer->get_basic_serializer()));
}

void ObjectTracker::savePointed(void const * object, Detail::OutputClass const & type)
{
    // An object that has been walked is not walked again: its content would meet itself.
    if (m_entries[object].saved)
        return;
    DepthGuard const guard(m_depth);
    walk(object, type);
}

void ObjectTracker::save_object(void const * object, boost::archive::detail::basic_oserializer const & serializer)
{
    Detail::OutputClass const & type = m_classes.of(serializer);
    // A base has the address of its object and is not an object of its own.
    if (object == m_walked)
        return type.serializer->save_object_data(*this, object);
    {
        Entry & entry = m_entries[object];
        if (entry.kind == Kind::Unknown)
            entry.kind = Kind::Reference;
        else if (entry.saved)
            throw std::runtime_error(entry.kind == Kind::Reference
                                         ? "Object adressed by reference was already serialized by reference"
                                         : "Object adressed by reference was already serialized by pointer");
    }
    walk(object, type);
}

void ObjectTracker::walk(void const * object, Detail::OutputClass const & type)
{
    boost::serialization::state_saver<void const *> const outer(m_walked);
    m_walked = object;
    type.serializer->save_object_data(*this, object);
    m_entries[object].saved = true;
}

void ObjectTracker::checkCount(void const * count)
{
    Entry const & entry = m_entries[count];
    if (entry.saved && entry.kind == Kind::OwnedPointer)
        throw std::runtime_error("Reference to object on heap is not allowed");
}

} // namespace Serialize
