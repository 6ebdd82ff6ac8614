/// @file
/// JSON texts of objects, read and written without a tree in between: an order of magnitude faster than `Json::parse`
/// with `Json::iarchive`, and `Json::oarchive` with `dump`. They use the layouts of the classes.
///
/// The results equal those of the archives. A function may refuse its input; use the archives then, which read it or
/// report the error with its position.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <EditorSerialization/ISerializable.h>

#include <QString>

namespace Serialize::Json {

/// Reads a JSON text from its start to its end, value by value:
///
/// ```cpp
/// TextReader reader(text);
/// std::string_view key;
/// for (reader.enterObject(); reader.nextKey(key);)
///     if (key == "effect")
///         reader.read(object);
///     else
///         reader.skip();
/// if (!reader.isWhole())
///     ... // read the text with `parse`
/// ```
///
/// Refuses, besides whatever is wrong: duplicate keys of the objects that it reads, references and objects that carry a
/// number, a meta object that is not the first key or says more than the class, classes without a layout, texts
/// that are no Unicode, and a byte order mark. After a refusal every function does nothing and returns
/// false, and what has been read is incomplete.
class EDITORSERIALIZATION_EXPORT TextReader
{
public:
    /// @param text  must outlive the reader
    explicit TextReader(std::string_view text);
    ~TextReader();
    TextReader(TextReader const &) = delete;
    TextReader & operator=(TextReader const &) = delete;

    bool enterObject(); ///< what follows is an object
    /// Reads the next key of the innermost object; its value has to be read next.
    /// @param key  valid until the next call
    /// Returns false at the end of the object, which is left.
    bool nextKey(std::string_view & key);
    bool enterArray(); ///< what follows is an array
    /// Whether the innermost array has another element, which has to be read next. Its end is left.
    bool nextElement();
    bool read(QString & text); ///< a string
    /// An object of the class that it names, or null.
    bool read(std::unique_ptr<ISerializable> & object);
    bool skip(); ///< any value
    /// Whether nothing was refused and nothing follows.
    bool isWhole();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// The object of the whole text; null for the text `null` and for one that is refused.
EDITORSERIALIZATION_EXPORT std::unique_ptr<ISerializable> readObject(std::string_view text);

/// The text of an object, byte for byte as `dump` writes the tree of `oarchive`. Empty for an object that is refused:
/// one of a class without a layout, or one that owns others too deeply.
EDITORSERIALIZATION_EXPORT std::string writeObject(ISerializable const & object);

} // namespace Serialize::Json
