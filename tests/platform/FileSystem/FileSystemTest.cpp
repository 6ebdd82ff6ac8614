#include <FileSystem/FileSystem.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(FileSystem, JoinsWithSingleSlashes)
{
    EXPECT_EQ(FS::joinPath({"/stock", "Luts", "warm.cube"}, {}), "/stock/Luts/warm.cube");
    EXPECT_EQ(FS::joinPath({"/stock/", "/Luts"}, {}), "/stock/Luts");
    EXPECT_EQ(FS::joinPath({"", "a", "", "b"}, ".png"), "a/b.png");
    EXPECT_EQ(FS::joinPath({}, {}), "");
}

TEST(FileSystem, Exists)
{
    QTemporaryDir const folder;
    QFile file(folder.filePath("here"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(FS::exists(folder.path()));
    EXPECT_TRUE(FS::exists(folder.filePath("here")));
    EXPECT_FALSE(FS::exists(folder.filePath("gone")));
    EXPECT_FALSE(FS::exists(QString()));
}

TEST(FileSystem, AbsolutePaths)
{
    EXPECT_EQ(FS::absolutePath(QString()), QString());
    EXPECT_EQ(FS::absolutePath("/a/../b"), "/b");
    EXPECT_EQ(FS::absolutePath("c"), QDir::currentPath() + "/c");
}

} // namespace
