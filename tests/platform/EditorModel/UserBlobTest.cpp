#include <EditorModel/UserBlob.h>

#include <optional>
#include <string>
#include <vector>

#include <EditorModel/Resource.h>
#include <EditorSettings/Settings.h>

#include "../../support/LogCapture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace {

using Resource::ID;
using Resource::Type;
using testing::ElementsAre;
using testing::IsEmpty;

class UserBlobTest : public testing::Test
{
protected:
    UserBlobTest() { ::Settings::setUserRoot(m_folder.filePath("user")); }
    ~UserBlobTest() override
    {
        ::Settings::setUserRoot(QString());
        for (ID const & id : m_registered)
            Resource::unregisterResource(id);
    }

    /// Relative to the folder that the user root lies in.
    QString path(QString const & name) const { return m_folder.filePath(name); }
    QString blob(QString const & name) const { return path("user/Blobs/" + name); }

    /// Writes a file whose only text is its name.
    void write(QString const & name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(file).path()));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_GT(file.write(name.toUtf8()), 0);
    }

    /// The file registered under a name; nothing when there is none.
    std::optional<QString> registered(QString const & name)
    {
        m_registered.emplace_back(name, Type::Blob);
        auto const registration = Resource::registration(m_registered.back());
        return registration ? std::optional(registration->path) : std::nullopt;
    }

    QTemporaryDir m_folder;
    std::vector<ID> m_registered;
    LogCapture m_log;
};

TEST_F(UserBlobTest, IsKnownByItsPathInTheFolder)
{
    for (char const * const name : {"warm.cube", "sub/deep.cube", "sub/folder/../deep.cube", ".hidden"}) {
        write(QDir::cleanPath(QString("user/Blobs/") + name));
        EXPECT_TRUE(UserBlob::loadBlob(blob(name))) << name;
        EXPECT_EQ(registered(name), QDir::cleanPath(blob(name))) << name;
    }
    EXPECT_EQ(registered("deep.cube"), std::nullopt);
    EXPECT_EQ(Resource::provideBlobResource("sub/deep.cube", nullptr)->data, "user/Blobs/sub/deep.cube");
    EXPECT_THAT(m_log.warnings(), IsEmpty());
}

TEST_F(UserBlobTest, StaysFoundWhenTheWorkingFolderChanges)
{
    write("user/Blobs/cold.cube");
    QString const before = QDir::currentPath();
    // By the name that the system has for it: a temporary folder may lie behind a link.
    ASSERT_TRUE(QDir::setCurrent(path("user/Blobs")));
    ::Settings::setUserRoot(QDir(QDir::currentPath() + "/..").absolutePath());
    EXPECT_TRUE(UserBlob::loadBlob("cold.cube"));
    ASSERT_TRUE(QDir::setCurrent(before));
    ASSERT_NE(registered("cold.cube"), std::nullopt);
    EXPECT_EQ(Resource::provideBlobResource("cold.cube", nullptr)->data, "user/Blobs/cold.cube");
}

TEST_F(UserBlobTest, TheFirstOfANameStays)
{
    write("stock/warm.cube");
    write("user/Blobs/warm.cube");
    m_registered.emplace_back("warm.cube", Type::Blob);
    Resource::registerResource(m_registered.back(), path("stock/warm.cube"), 0, MTime(), {});
    EXPECT_FALSE(UserBlob::loadBlob(blob("warm.cube")));
    EXPECT_EQ(registered("warm.cube"), path("stock/warm.cube"));
    EXPECT_THAT(m_log.warnings(), ElementsAre("Couldn't load user's blob: " + blob("warm.cube").toStdString() +
                                              ": its name belongs to " + path("stock/warm.cube").toStdString()));
}

TEST_F(UserBlobTest, MayBeLoadedAgain)
{
    write("user/Blobs/warm.cube");
    EXPECT_TRUE(UserBlob::loadBlob(blob("warm.cube")));
    EXPECT_TRUE(UserBlob::loadBlob(blob("warm.cube")));
    EXPECT_EQ(registered("warm.cube"), blob("warm.cube"));
    EXPECT_THAT(m_log.warnings(), IsEmpty());
}

TEST_F(UserBlobTest, NothingOutsideOfTheFolderIsLoaded)
{
    write("outside.cube");
    write("user/outside.cube");
    write("user/BlobsToo/outside.cube");
    write("user/Blobs/sub/inside.cube");
    for (QString const & outside : {blob("../../outside.cube"), blob("../outside.cube"), blob("sub/../../outside.cube"),
             blob("../BlobsToo/outside.cube"), path("user/BlobsToo/outside.cube"), path("outside.cube"),
             QString("/dev/zero"), QString("outside.cube"), QString(), path("user/Blobs"), blob("")}) {
        LogCapture const log;
        EXPECT_FALSE(UserBlob::loadBlob(outside)) << outside.toStdString();
        EXPECT_THAT(log.warnings(), ElementsAre("Couldn't load user's blob: " + outside.toStdString() + ": is not in " +
                                                path("user/Blobs").toStdString()));
    }
    for (char const * const name : {"outside.cube", "../../outside.cube", "../outside.cube", "sub/../../outside.cube"})
        EXPECT_EQ(registered(name), std::nullopt) << name;
}

TEST_F(UserBlobTest, WhatIsNoFileIsRefused)
{
    ASSERT_TRUE(QDir().mkpath(blob("folder")));
    ASSERT_EQ(::symlink("gone", QFile::encodeName(blob("link")).constData()), 0);
    ASSERT_EQ(::symlink("/dev/zero", QFile::encodeName(blob("zero")).constData()), 0);
    struct Row
    {
        char const * name;
        char const * problem;
    };
    for (Row const row : {Row{"none.cube", "no such file"}, Row{"link", "no such file"},
             Row{"folder", "is not a regular file"}, Row{"zero", "is not a regular file"}}) {
        LogCapture const log;
        EXPECT_FALSE(UserBlob::loadBlob(blob(row.name))) << row.name;
        EXPECT_THAT(log.warnings(),
            ElementsAre("Couldn't load user's blob: " + blob(row.name).toStdString() + ": " + row.problem));
        EXPECT_EQ(registered(row.name), std::nullopt) << row.name;
    }
}

} // namespace
