/// @file
/// Finds the comment at the head of a fragment shader that describes the effect.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace External::ShaderISF {

/// Where the head comment stands in the text of a shader, and the JSON text that it holds.
struct HeadComment
{
    std::size_t begin; ///< of the comment's opening characters
    std::size_t end;   ///< behind the comment's closing characters
    /// Of `json` in the shader's text. The two run in parallel, byte by byte.
    std::size_t jsonBegin;
    /// Strict JSON where the file has comments, trailing commas or control characters in strings: blanks stand there.
    /// Its brackets are no deeper than maximumDepth, but need not match.
    std::string json;
};

/// Finds the first block comment whose text starts with a brace. Line comments and other block comments may precede
/// it, and so may code. Within strings and behind the JSON object the comment may hold what it likes.
///
/// Expects line ends as "\n".
/// @throws std::runtime_error if there is none, or it has no end, or is nested too deeply
HeadComment findHeadComment(std::string_view shader);

/// The place of the byte at `offset`, such as "line 3, column 14", both counted from 1 and columns in bytes.
std::string describePlace(std::string_view text, std::size_t offset);

} // namespace External::ShaderISF
