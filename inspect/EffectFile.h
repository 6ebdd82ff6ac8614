/// @file
/// Files of effects that are compared and changed.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <EditorModel/EffectDocument.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// An archive in either form, or an item, with all that is in it: what the library does not know is kept.
class EFFECTS_INSPECT_API EffectFile
{
public:
    /// Throws a `Failure` that names the file for one that cannot be read, or has an error in it.
    /// @param path  "-" for standard input
    static EffectFile read(std::string const & path);

    /// The same for bytes that have been read.
    /// @param name   by which messages call the file
    /// @param bytes  of the file
    static EffectFile parse(std::string const & name, std::string bytes);

    std::string const & name() const { return m_name; }   ///< by which messages call the file
    std::string const & bytes() const { return m_bytes; } ///< as they are now, in the form in which they were read

    bool isItem() const;               ///< whether it is one of the catalogue
    std::string effectPointer() const; ///< JSON pointer of the effect in the document: that of an item is "/effect"
    Object const * effect() const;     ///< null where its class is unknown
    nlohmann::json document() const;   ///< with every key that the effect has, and what is unknown in it

    /// Sets a parameter of the effect as `setParameter` does. Throws a `Failure` that names the file.
    void set(std::string const & key, std::string const & value);

    /// Takes a parameter back to its default by leaving it out of the text, or an unknown key out of it. Throws a
    /// `Failure` that names the file where the effect has no such key.
    /// @param key  as that of `set`, but not one in a list; in a text also an unknown one of the effect's own object,
    /// or
    ///             the JSON pointer of one in the effect's document
    void unset(std::string const & key);

    /// Applies a patch as RFC 6902 describes it to the document: all of it, or nothing. Throws a `Failure` that names
    /// the file where the patch does not fit or would leave a file with an error.
    /// @param operations  pointers are those of `document`
    void patch(nlohmann::json const & operations);

private:
    EffectFile(std::string name, std::string bytes);

    /// Takes these bytes over, unless they have an error.
    void take(std::string bytes);
    [[noreturn]] void fail(std::string const & reason) const;
    Object & knownEffect();

    std::string m_name;
    std::string m_bytes;
    Archive::Document m_document;
    nlohmann::ordered_json m_tree; // of a text
    bool m_isJson = true;
};

} // namespace Effect::Inspect
