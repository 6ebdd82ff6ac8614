/// @file
/// A folder of files that the program works on.
#pragma once

#include <string>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Testing {

/// Gone at the end, with all that is in it.
class TemporaryFolder
{
public:
    /// Of a file or a folder in it.
    QString path(QString const & name) const { return m_folder.filePath(name); }

    /// Writes a file anew, the folder that it is in included, and returns its path.
    QString write(QString const & name, std::string const & bytes) const
    {
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
        EXPECT_EQ(file.write(bytes.data(), static_cast<qint64>(bytes.size())), static_cast<qint64>(bytes.size()));
        return file.fileName();
    }

    std::string read(QString const & name) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll().toStdString();
    }

private:
    QTemporaryDir m_folder;
};

} // namespace Testing
