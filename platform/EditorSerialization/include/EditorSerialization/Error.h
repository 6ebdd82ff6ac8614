/// @file
/// The exception of the archives.
#pragma once

#include <string>

#include <boost/archive/archive_exception.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// What is wrong with an archive, and where. It carries the framework's code, so that a caller that catches the
/// framework's exception loses nothing.
class EDITORSERIALIZATION_EXPORT ArchiveError : public boost::archive::archive_exception
{
public:
    /// @param errorCode  the framework's code
    /// @param text       what is wrong and where. It may quote any bytes of the archive
    ArchiveError(exception_code errorCode, std::string const & text);
    ArchiveError(ArchiveError const &) noexcept; ///< as exceptions are copied
    ~ArchiveError() noexcept override;

    /// The text: one line of well-formed UTF-8 and of no more than a few thousand bytes, whatever it quotes. Bytes that
    /// are no UTF-8 and control characters are replaced by U+FFFD, and a long text is shortened in its middle.
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
    /// @param depth  the counter, which outlives the guard
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
