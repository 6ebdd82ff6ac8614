/// @file
/// Motion tracks for tests.
#pragma once

#include <stdexcept>
#include <string>

#include <EditorModel/MotionTracking.h>

#include <QTemporaryFile>

namespace Testing {

/// The track of an identifier for as long as it lives, in a file of its own.
class TemporaryTrack
{
public:
    /// @param text  of the file
    TemporaryTrack(QString const & id, std::string const & text)
        : m_id(id)
    {
        if (!m_file.open() || m_file.write(text.data(), static_cast<qint64>(text.size())) < 0 || !m_file.flush())
            throw std::runtime_error("cannot write a temporary file");
        MotionTracking::registerTrack(m_id, m_file.fileName());
    }
    ~TemporaryTrack() { MotionTracking::unregisterTrack(m_id); }
    TemporaryTrack(TemporaryTrack const &) = delete;
    TemporaryTrack & operator=(TemporaryTrack const &) = delete;

private:
    QString m_id;
    QTemporaryFile m_file;
};

} // namespace Testing
