/// @file
/// Files behind the names of resources.
#pragma once

#include <vector>

#include <EditorModel/Resource.h>

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Testing {

/// A folder of files, and the resources that were registered for them, both gone at the end.
class TemporaryResources
{
public:
    TemporaryResources() = default;
    ~TemporaryResources()
    {
        for (Resource::ID const & id : m_registered)
            Resource::unregisterResource(id);
    }
    TemporaryResources(TemporaryResources const &) = delete;
    TemporaryResources & operator=(TemporaryResources const &) = delete;

    QString folder() const { return m_folder.path(); }
    QString path(QString const & file) const { return m_folder.filePath(file); }

    /// Writes a file anew.
    void write(QString const & file, QByteArray const & bytes) const
    {
        QFile out(path(file));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        ASSERT_EQ(out.write(bytes), bytes.size());
    }

    void remove(QString const & file) const { ASSERT_TRUE(QFile::remove(path(file))); }

    /// Makes a file, there or not, the resource of that name.
    void add(QString const & name, QString const & file, Resource::Type type = Resource::Type::Blob)
    {
        m_registered.emplace_back(name, type);
        Resource::registerResource(m_registered.back(), path(file), 0, MTime(), {});
    }

private:
    QTemporaryDir m_folder;
    std::vector<Resource::ID> m_registered;
};

} // namespace Testing
