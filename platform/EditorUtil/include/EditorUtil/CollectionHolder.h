/// @file
/// Owning collections.
#pragma once

#include <memory>

#include <EditorModel/Collection.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// Owns collections and makes them known to `CollectionProvider` for as long as it lives. Collections may be asked for
/// from any thread, also while others are being registered.
class EDITORUTIL_EXPORT CollectionHolder
{
public:
    CollectionHolder();
    /// First has the host's item storage drop the loads of these collections: whoever derives from this class may hand
    /// out callbacks that use the collections. Must not run inside such a callback.
    virtual ~CollectionHolder();
    CollectionHolder(CollectionHolder const &) = delete;
    CollectionHolder & operator=(CollectionHolder const &) = delete;

    /// Creates an empty collection. Does nothing when this holder has one of that name.
    void registerCollection(QString const & name);

    /// This holder's collection of that name; null when it has none.
    ICollection * collection(QString const & name) const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace EditorCollection
