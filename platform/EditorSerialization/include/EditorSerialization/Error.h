/// @file
/// The exception of the archives.
#pragma once

#include <string>

#include <boost/archive/archive_exception.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// What is wrong with an archive, and where. It carries the framework's code, so that a caller that catches the
/// framework's exception loses nothing, and a text of any length.
class EDITORSERIALIZATION_EXPORT ArchiveError : public boost::archive::archive_exception
{
public:
    ArchiveError(exception_code errorCode, std::string text);
    ArchiveError(ArchiveError const &) noexcept;
    ~ArchiveError() noexcept override;

    char const * what() const noexcept override;

private:
    std::string m_text;
};

/// Objects may own objects, and those own others, to this depth. Every reader and writer refuses more, so that a
/// hostile or runaway document ends in an error and not at the end of the stack.
inline constexpr int maxObjectDepth = 64;

/// Counts one level of objects while it lives; throws an `ArchiveError` past `maxObjectDepth`.
class EDITORSERIALIZATION_EXPORT DepthGuard
{
public:
    explicit DepthGuard(int & depth);
    /// The same, but `fail` is given the text and throws, to say where it is.
    template <class Fail>
    DepthGuard(int & depth, Fail const & fail)
        : m_depth(depth)
    {
        if (m_depth >= maxObjectDepth)
            fail(tooDeep());
        ++m_depth;
    }
    ~DepthGuard() { --m_depth; }
    DepthGuard(DepthGuard const &) = delete;
    DepthGuard & operator=(DepthGuard const &) = delete;

private:
    static std::string tooDeep();

    int & m_depth;
};

} // namespace Serialize
