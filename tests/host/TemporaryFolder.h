/// @file
/// A folder of files that the program works on.
#pragma once

#include <string>

#include <support/Folder.h>

#include <QString>

namespace Testing {

/// A `Folder` whose names are texts of Qt, as the arguments of the program are here.
class TemporaryFolder
{
public:
    QString path(QString const & name) const { return QString::fromStdString(m_folder.path(name.toStdString())); }
    QString write(QString const & name, std::string const & bytes) const
    {
        return QString::fromStdString(m_folder.write(name.toStdString(), bytes));
    }
    std::string read(QString const & name) const { return m_folder.read(name.toStdString()); }

private:
    Folder m_folder;
};

} // namespace Testing
