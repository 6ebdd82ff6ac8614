/// @file
/// An effect together with the file that it was read from.
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <shared_mutex>
#include <stdexcept>
#include <string>

#include <EditorModel/EffectDocument.h>
#include <EditorModel/EffectObject.h>

#include <nlohmann/json.hpp>

namespace EffectsPython {

/// The effect that a file holds, or a new one, and everything else in the file, which is kept. Reading costs what
/// reading the effect alone does: the document that keeps the rest is made when the effect is first changed.
///
/// Operations that work without the interpreter's lock hold `mutex` shared. A change holds it exclusively and the
/// interpreter's lock as well, so that what reads under the interpreter's lock needs no other.
class Source
{
public:
    /// Reads a file's content in either form. Throws a `ReadError` when it has no effect that can be read.
    /// @param file  its name, in the bytes of the file system; empty for content that is in no file
    static std::shared_ptr<Source> read(std::shared_ptr<std::string const> bytes, std::string file);
    /// Of a new effect.
    static std::shared_ptr<Source> of(std::unique_ptr<Effect::Object> effect);

    Effect::Object const & effect() const;
    /// The effect for a change. It may be another object than before, so pointers into that are invalid. Throws a
    /// `ReadError` where a change would lose what else is in the file.
    Effect::Object & change();

    /// The effect for the library at work: the paths in an item, which are relative to its folder, are absolute. Lives
    /// no longer than the source.
    std::shared_ptr<Effect::Object const> usable() const;
    std::string const & file() const { return m_file; }

    std::string toJson() const;   ///< the text of the file with the changes
    std::string toBinary() const; ///< throws an `ArchiveError` where something would be lost
    std::string toBytes() const;  ///< in the form of the file; of a new effect, the binary one
    /// The document of the effect in `toJson` where the file holds something that this library does not know; else
    /// null.
    std::shared_ptr<nlohmann::ordered_json const> documentWithUnknown() const;

    std::shared_mutex & mutex() const { return m_mutex; }

private:
    Source() = default;

    bool isJson() const;
    bool isItem() const; // of the catalogue

    std::string m_file;
    std::shared_ptr<std::string const> m_bytes; // null for a new effect
    std::unique_ptr<Effect::Object> m_effect;   // until there is a document
    std::optional<Effect::Archive::Document> m_document;
    mutable std::shared_mutex m_mutex;

    // Found out when they are first asked for, which readers may do at the same time.
    mutable std::mutex m_cacheMutex;
    mutable std::optional<bool> m_hasUnknown;
    mutable std::shared_ptr<nlohmann::ordered_json const> m_tree; // of the effect; dropped when it is changed
};

/// What is wrong with a file, and where.
class ReadError : public std::runtime_error
{
public:
    explicit ReadError(Effect::Archive::Finding finding);

    Effect::Archive::Finding const & finding() const { return m_finding; }

private:
    Effect::Archive::Finding m_finding;
};

} // namespace EffectsPython
