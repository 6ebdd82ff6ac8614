/// @file
/// Finds the comment at the head of a fragment shader that describes the effect.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace External::ShaderISF {

/// The position of the head comment in the text of a shader, and its JSON text.
struct HeadComment
{
    std::size_t begin; ///< of the comment's opening characters
    std::size_t end;   ///< behind the comment's closing characters
    /// Of `json` in the shader's text. The two run in parallel, byte by byte.
    std::size_t jsonBegin;
    /// Strict JSON: comments, trailing commas and control characters in strings are replaced by blanks.
    /// Its brackets are no deeper than maximumDepth, but need not match.
    std::string json;
};

/// Finds the first block comment whose text starts with a brace. Comments and code may
/// precede it. Within strings and behind the JSON object the comment may contain anything.
///
/// Expects line ends as "\n".
/// @throws std::runtime_error if there is none, or it has no end, or is nested too deeply
HeadComment findHeadComment(std::string_view shader);

/// The place of the byte at `offset`, such as "line 3, column 14", both counted from 1 and columns in bytes.
std::string describePlace(std::string_view text, std::size_t offset);

} // namespace External::ShaderISF
