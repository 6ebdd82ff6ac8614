#include <EditorModel/UserBlob.h>

#include <EditorModel/Resource.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Resource::ID;
using Resource::Type;

class UserBlobTest : public testing::Test
{
protected:
    void write(QString const & name, QByteArray const & bytes) const
    {
        QFile file(m_folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    QTemporaryDir m_folder;
};

TEST_F(UserBlobTest, IsKnownByItsFileName)
{
    write("warm.cube", "a table");
    EXPECT_TRUE(UserBlob::loadBlob(m_folder.filePath("warm.cube")));
    EXPECT_TRUE(Resource::isResourceRegistered(ID("warm.cube", Type::Blob)));
    EXPECT_EQ(Resource::provideBlobResource("warm.cube", nullptr)->data, "a table");
    Resource::unregisterResource(ID("warm.cube", Type::Blob));
}

TEST_F(UserBlobTest, StaysFoundWhenTheWorkingFolderChanges)
{
    write("cold.cube", "a table");
    QString const before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.path()));
    EXPECT_TRUE(UserBlob::loadBlob("cold.cube"));
    ASSERT_TRUE(QDir::setCurrent(before));
    EXPECT_EQ(Resource::provideBlobResource("cold.cube", nullptr)->data, "a table");
    Resource::unregisterResource(ID("cold.cube", Type::Blob));
}

TEST_F(UserBlobTest, WhatIsNoFileIsRefused)
{
    EXPECT_FALSE(UserBlob::loadBlob(m_folder.filePath("none.cube")));
    EXPECT_FALSE(UserBlob::loadBlob(m_folder.path()));
    EXPECT_FALSE(UserBlob::loadBlob(""));
    EXPECT_FALSE(UserBlob::loadBlob("/dev/zero"));
    EXPECT_FALSE(Resource::isResourceRegistered(ID("none.cube", Type::Blob)));
    EXPECT_FALSE(Resource::isResourceRegistered(ID("zero", Type::Blob)));
}

} // namespace
