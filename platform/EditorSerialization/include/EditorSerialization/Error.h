/// @file
/// The exception of the archives.
#pragma once

#include <string>

#include <boost/archive/archive_exception.hpp>

#include <EditorSerialization/Export.h>

namespace Serialize {

/// An error in an archive, with its position. It has the framework's error code and derives from its exception, so that
/// existing handlers work.
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

/// Maximum nesting of objects that own objects. Readers and writers refuse more, so that a hostile document causes an
/// error instead of a stack overflow.
inline constexpr int maxObjectDepth = 64;

/// Counts one level of objects while it lives; throws an `ArchiveError` past `maxObjectDepth`.
class EDITORSERIALIZATION_EXPORT DepthGuard
{
public:
    /// @param depth  the counter, which outlives the guard
    explicit DepthGuard(int & depth);
    /// The same, but calls `fail` with the text, which throws with the position.
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
