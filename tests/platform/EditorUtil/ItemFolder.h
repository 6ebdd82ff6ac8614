/// @file
/// Folders of items, for tests.
#pragma once

#include <string>
#include <string_view>

#include <EditorUtil/ItemFile.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Testing {

/// The text of an item file whose effect bears that tag.
inline std::string itemText(std::string const & tag, std::string const & categories = "[]")
{
    return R"({"categories": )" + categories +
           R"(, "effect": {"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"tag": ")" + tag + R"("}}})";
}

/// A folder that goes with the test.
class ItemFolder
{
public:
    QString path() const { return m_folder.path(); }
    std::string nativePath() const { return path().toStdString(); }
    std::string file(std::string const & name) const { return nativePath() + '/' + name; }

    void write(std::string const & fileName, std::string const & text) const
    {
        QFile target(QString::fromStdString(file(fileName)));
        ASSERT_TRUE(target.open(QIODevice::WriteOnly)) << fileName;
        ASSERT_EQ(target.write(text.data(), static_cast<qint64>(text.size())), static_cast<qint64>(text.size()));
    }
    /// Writes an item whose effect's tag is `name`, to the file of that name.
    void add(std::string const & name) const
    {
        write(name + std::string(EditorCollection::itemFileSuffix), itemText(name));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace Testing
