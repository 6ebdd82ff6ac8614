#include <EditorSerialization/Error.h>

#include <utility>

#include <EditorSerialization/ISerializable.h>

namespace Serialize {

ISerializable::~ISerializable() = default;

ArchiveError::ArchiveError(exception_code errorCode, std::string text)
    : archive_exception(errorCode)
    , m_text(std::move(text))
{}

ArchiveError::ArchiveError(ArchiveError const &) noexcept = default;

ArchiveError::~ArchiveError() noexcept = default;

char const * ArchiveError::what() const noexcept
{
    return m_text.c_str();
}

DepthGuard::DepthGuard(int & depth)
    : DepthGuard(depth, [](std::string const & text) { throw ArchiveError(ArchiveError::other_exception, text); })
{}

std::string DepthGuard::tooDeep()
{
    return "objects are nested more than " + std::to_string(maxObjectDepth) + " deep";
}

} // namespace Serialize
