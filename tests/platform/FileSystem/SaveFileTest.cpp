#include <FileSystem/FileSystem.h>

#include <atomic>
#include <csignal>
#include <random>
#include <regex>
#include <string>

#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "../../support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

/// A folder with the file that the tests save.
class SaveFileTest : public testing::Test
{
protected:
    QString path(QString const & name = "file") const { return folder.filePath(name); }

    std::string content(QString const & name = "file") const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        return file.readAll().toStdString();
    }

    QStringList names() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    // In memory where the system has such a folder: on a disk, a thousand saves wait half a minute for it.
    QTemporaryDir const folder{QFileInfo("/dev/shm").isWritable() ? "/dev/shm/SaveFileTest-XXXXXX"
                                                                  : QDir::tempPath() + "/SaveFileTest-XXXXXX"};
};

TEST_F(SaveFileTest, MakesAndReplacesAFile)
{
    EXPECT_TRUE(FS::saveFile(path(), std::string_view("a\0b\r\n", 5)));
    EXPECT_EQ(content(), std::string("a\0b\r\n", 5));
    EXPECT_TRUE(FS::saveFile(path(), std::string(100'000, 'x')));
    EXPECT_EQ(content(), std::string(100'000, 'x'));
    EXPECT_TRUE(FS::saveFile(path(), ""));
    EXPECT_EQ(content(), "");
    EXPECT_THAT(names(), ElementsAre("file"));
}

TEST_F(SaveFileTest, KeepsPermissionsAndSymbolicLinks)
{
    ASSERT_TRUE(FS::saveFile(path(), "old"));
    ASSERT_EQ(::chmod(QFile::encodeName(path()).constData(), 0640), 0);
    ASSERT_TRUE(QFile::link("file", path("link")));
    EXPECT_TRUE(FS::saveFile(path("link"), "new"));
    EXPECT_EQ(content(), "new");
    EXPECT_EQ(QFile::symLinkTarget(path("link")), path());
    struct stat status;
    ASSERT_EQ(::stat(QFile::encodeName(path()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640);
}

TEST_F(SaveFileTest, SaysWhyNothingWasSaved)
{
    QString error = "unchanged";
    ASSERT_TRUE(FS::saveFile(path(), "old", &error));
    EXPECT_EQ(error, "unchanged");
    EXPECT_FALSE(FS::saveFile(path("missing/file"), "new", &error));
    EXPECT_EQ(error, "No such file or directory");
    EXPECT_FALSE(FS::saveFile(path("file/file"), "new", &error));
    EXPECT_EQ(error, "Not a directory");
    ASSERT_TRUE(QDir(folder.path()).mkdir("folder"));
    EXPECT_FALSE(FS::saveFile(path("folder"), "new", &error));
    EXPECT_THAT(error.toStdString(), HasSubstr("directory"));
    EXPECT_FALSE(FS::saveFile(path("missing/file"), "new"));
    EXPECT_EQ(content(), "old");
}

TEST_F(SaveFileTest, AFullDiskLeavesTheOldFile)
{
    ASSERT_TRUE(FS::saveFile(path(), "old"));
    // A part of the first two fits; all of the last one would, but for one byte.
    for (std::size_t const size : {100'000u, 5'000u, 4'097u}) {
        QString error;
        Testing::FileSizeLimit const limit(4096);
        EXPECT_FALSE(FS::saveFile(path(), std::string(size, 'x'), &error)) << size;
        EXPECT_EQ(error.toStdString(), "File too large") << size;
        EXPECT_EQ(content(), "old") << size;
    }
    EXPECT_THAT(names(), ElementsAre("file"));
}

TEST_F(SaveFileTest, AReadOnlyFolderLeavesTheOldFile)
{
    constexpr uid_t stranger = 65534;
    ASSERT_TRUE(FS::saveFile(path(), "old"));
    QByteArray const file = QFile::encodeName(path());
    QByteArray const place = QFile::encodeName(folder.path());
    ASSERT_EQ(::chmod(file.constData(), 0666), 0);
    ASSERT_EQ(::chmod(place.constData(), 0555), 0);
    uid_t const user = ::geteuid();
    if (user == 0) { // may write anywhere
        ASSERT_EQ(::seteuid(stranger), 0);
    }
    QString error;
    bool const isSaved = FS::saveFile(path(), "new", &error);
    ASSERT_EQ(::seteuid(user), 0);
    ASSERT_EQ(::chmod(place.constData(), 0755), 0);
    EXPECT_FALSE(isSaved);
    EXPECT_EQ(error, "Permission denied");
    EXPECT_EQ(content(), "old");
    EXPECT_THAT(names(), ElementsAre("file"));
}

TEST_F(SaveFileTest, AProcessThatIsKilledLeavesTheOldFileOrTheNewOne)
{
    constexpr int wantedSaves = 1000;
    std::string const versions[] = {std::string(300'000, 'a'), std::string(200'000, 'b')};
    ASSERT_TRUE(FS::saveFile(path(), versions[0]));
    void * const shared =
        ::mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    auto & saves = *new (shared) std::atomic<int>(0);

    std::mt19937 random(17);
    std::uniform_int_distribution<useconds_t> delay(0, 2'000); // microseconds
    int kills = 0;
    while (saves < wantedSaves || kills < 500) {
        pid_t const child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (int version = 0; FS::saveFile(path(), versions[version]); version = 1 - version)
                ++saves;
            ::_exit(1);
        }
        ::usleep(delay(random));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
        ++kills;
        std::string const found = content();
        ASSERT_TRUE(found == versions[0] || found == versions[1])
            << found.size() << " bytes after " << kills << " kills and " << saves << " saves";
    }
    RecordProperty("kills", kills);
    // At most the one file that is made just before it takes the old one's place.
    static std::regex const leftover("file\\.[A-Za-z]{6}");
    for (QString const & name : names())
        EXPECT_TRUE(name == "file" || std::regex_match(name.toStdString(), leftover)) << name.toStdString();
    EXPECT_EQ(::munmap(shared, sizeof(std::atomic<int>)), 0);
}

} // namespace
