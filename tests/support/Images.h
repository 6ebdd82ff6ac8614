/// @file
/// Images on disk, for tests that load some.
#pragma once

#include <EditorSettings/Settings.h>

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Testing {

/// Writes an image of one colour, creating the folder it is to lie in. The format goes by `format`, not by the name.
inline void writeImage(
    QString const & path, int width, int height, QColor const & color = Qt::white, char const * format = "PNG")
{
    ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    ASSERT_TRUE(image.save(path, format)) << path.toStdString();
}

/// A stock root of its own for a test, empty at first.
class TemporaryStock
{
public:
    TemporaryStock() { ::Settings::setStockRoot(m_folder.path()); }
    ~TemporaryStock() { ::Settings::setStockRoot(QString()); }
    TemporaryStock(TemporaryStock const &) = delete;
    TemporaryStock & operator=(TemporaryStock const &) = delete;

private:
    QTemporaryDir m_folder;
};

} // namespace Testing
