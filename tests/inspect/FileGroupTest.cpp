#include <inspect/FileGroup.h>

#include <filesystem>

#include <sys/stat.h>

#include <inspect/Parallel.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using testing::ElementsAre;
using Testing::failureOf;
using Testing::Folder;
using testing::IsEmpty;
using testing::StartsWith;

TEST(FileGroup, PutsEverythingInItsPlaceAtOnce)
{
    Folder const folder;
    folder.write("old.bin", "old");
    FileGroup group;
    group.add(folder.path("old.bin"), "new");
    group.add(folder.path("deep/er/a.bin"), std::string("\0b", 2));
    EXPECT_EQ(folder.read("old.bin"), "old");
    EXPECT_FALSE(std::filesystem::exists(folder.path("deep/er/a.bin")));
    EXPECT_THAT(group.commit(), IsEmpty());
    EXPECT_THAT(folder.files(), ElementsAre("deep/er/a.bin", "old.bin"));
    EXPECT_EQ(folder.read("old.bin"), "new");
    EXPECT_EQ(folder.read("deep/er/a.bin"), std::string("\0b", 2));
}

TEST(FileGroup, LeavesNothingBehindWithoutACommit)
{
    Folder const folder;
    folder.write("old.bin", "old");
    {
        FileGroup group;
        group.add(folder.path("old.bin"), "new");
        group.add(folder.path("other.bin"), "new");
    }
    EXPECT_THAT(folder.files(), ElementsAre("old.bin"));
    EXPECT_EQ(folder.read("old.bin"), "old");
}

TEST(FileGroup, KeepsPermissionsAndLinks)
{
    Folder const folder;
    folder.write("mine.bin", "old");
    ::chmod(folder.path("mine.bin").c_str(), 0640);
    std::filesystem::create_symlink("mine.bin", folder.path("link.bin"));
    mode_t const mask = ::umask(027);
    {
        FileGroup group;
        group.add(folder.path("link.bin"), "new");
        group.add(folder.path("other.bin"), "new");
        EXPECT_THAT(group.commit(), IsEmpty());
    }
    ::umask(mask);
    struct stat status;
    ASSERT_EQ(::lstat(folder.path("link.bin").c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(folder.read("mine.bin"), "new");
    ASSERT_EQ(::stat(folder.path("mine.bin").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
    ASSERT_EQ(::stat(folder.path("other.bin").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640U);
}

TEST(FileGroup, SaysWhatCannotBeWritten)
{
    Folder const folder;
    folder.write("file", "");
    std::filesystem::create_directories(folder.path("folder/full"));
    FileGroup group;
    EXPECT_THAT(failureOf([&] { group.add(folder.path("file/a.bin"), "a"); }), StartsWith(folder.path("file/a.bin: ")));
    group.add(folder.path("a.bin"), "a");
    group.add(folder.path("folder"), "b"); // seen when it takes the place
    EXPECT_THAT(group.commit(), ElementsAre(folder.path("folder") + ": Is a directory"));
    EXPECT_THAT(folder.files(), ElementsAre("a.bin", "file"));
}

TEST(FileGroup, TakesFilesFromAnyThread)
{
    Folder const folder;
    FileGroup group;
    parallel(500, [&](std::size_t index) { group.add(folder.path(std::to_string(index)), std::to_string(index)); });
    EXPECT_THAT(group.commit(), IsEmpty());
    ASSERT_EQ(folder.files().size(), 500U);
    for (int index = 0; index < 500; ++index)
        EXPECT_EQ(folder.read(std::to_string(index)), std::to_string(index));
}

} // namespace
