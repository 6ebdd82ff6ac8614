/// @file
/// Files of effects that are changed and lose nothing: what this library does not know stays as it is.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <EditorModel/Export.h>

namespace Effect::Archive {

/// How bad a finding is.
enum class Severity
{
    Note,    ///< worth knowing
    Warning, ///< the effect can be read, and what the finding is about is kept in the file
    Error,   ///< the effect cannot be read as it was written
};

/// A problem at one place of a file.
struct Finding
{
    Severity severity = Severity::Error; ///< how bad it is
    /// For programs: `no-json`, `truncated`, `damaged`, `unknown-class`, `unknown-key`, `misplaced-key`,
    /// `duplicate-key`, `wrong-type`.
    std::string code;
    std::optional<std::string> pointer; ///< JSON pointer of the value; nothing in a binary file
    std::optional<std::size_t> offset;  ///< in bytes from the start of the file
    std::optional<std::size_t> line;    ///< counted from 1; nothing in a binary file
    std::optional<std::size_t> column;  ///< in bytes, counted from 1; nothing in a binary file
    std::string message;                ///< one line of UTF-8
    std::string suggestion;             ///< the known name that is nearest to an unknown one; empty for none
};

/// The archive of one effect in either form, or an item of the catalogue, with all that is in it.
///
/// ```cpp
/// auto document = Effect::Archive::Document::read(bytes);
/// if (auto * const effect = document.effect())
///     effect->intensity = 0.5;
/// save(document.toJson()); // with whatever a newer version has put there
/// ```
///
/// In JSON, members that no class names, effects of classes that nothing has registered, and the order of the members
/// are kept. An unknown effect is an empty slot for the program; the file keeps it in its place among those that stay.
/// The binary form has neither names nor lengths, so that an unknown class makes all of it unreadable: the bytes are
/// kept then.
class EDITORMODEL_EXPORT Document
{
public:
    /// Reads a file, and collects all findings. Does not throw for any content.
    static Document read(std::string_view bytes);
    /// The same for a damaged file. A text counts up to its last whole value, a value of the wrong type leaves its
    /// field at the default, an element of a list that cannot be read is left out; a binary file counts up to the
    /// damage. The findings say what is missing. Writing the document writes what could be read.
    static Document salvage(std::string_view bytes);

    /// @{
    /// A document that has been moved from can only be destroyed or assigned to.
    Document(Document &&) noexcept;
    Document & operator=(Document &&) noexcept;
    /// @}
    ~Document();

    /// @{
    /// The document's own effect, to be changed in place. Null where the file has errors, or is of an unknown class.
    Object * effect();
    Object const * effect() const;
    /// @}

    /// In the order of the file.
    std::vector<Finding> const & findings() const;

    /// The JSON text. A document that was read from JSON and has not been changed gives the text that was read; a
    /// changed value takes its place in it, and everything else stays. Throws an `ArchiveError` where a binary file has
    /// no effect that could be written.
    std::string toJson() const;

    /// The binary archive. A document that was read from it and has not been changed gives the bytes that were read.
    /// Throws an `ArchiveError` where that would lose something: where there is no effect, or the JSON text holds
    /// something that this library does not know.
    std::string toBinary() const;

private:
    struct State;
    explicit Document(std::unique_ptr<State> state);

    std::unique_ptr<State> m_state;
};

} // namespace Effect::Archive
