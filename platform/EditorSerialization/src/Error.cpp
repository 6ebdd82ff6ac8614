#include <EditorSerialization/Error.h>

#include <EditorSerialization/ISerializable.h>

#include <QString>

namespace Serialize {

namespace {

std::string presentable(std::string const & text)
{
    constexpr int longestHalf = 1000; // in UTF-16 units
    QString line = QString::fromStdString(text);
    if (line.size() > 2 * longestHalf)
        line = line.left(longestHalf) + QStringLiteral(" ... ") + line.right(longestHalf);
    for (QChar & unit : line)
        if (unit.category() == QChar::Other_Control)
            unit = QChar::ReplacementCharacter;
    return line.toStdString();
}

} // namespace

ISerializable::~ISerializable() = default;

Layout const * ISerializable::GetLayout() const
{
    return nullptr;
}

ArchiveError::ArchiveError(exception_code errorCode, std::string const & text)
    : archive_exception(errorCode)
    , m_text(presentable(text))
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
