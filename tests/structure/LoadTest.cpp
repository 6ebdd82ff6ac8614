// This program has nothing of the library, neither linked nor defined, and nothing of what the library links: it loads
// it as a plug-in host would.

#include <filesystem>
#include <string>
#include <vector>

#include <dlfcn.h>
#include <link.h>

#include <effects/Version.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

/// The paths of the libraries that are in the process.
std::vector<std::string> loadedLibraries()
{
    std::vector<std::string> paths;
    dl_iterate_phdr(
        [](dl_phdr_info * info, std::size_t, void * list) {
            static_cast<std::vector<std::string> *>(list)->emplace_back(info->dlpi_name);
            return 0;
        },
        &paths);
    return paths;
}

TEST(Load, LibraryLoadsUnloadsAndLoadsAgainWithEveryReferenceResolved)
{
    for (char const * const name : {"libQt5", "libglog", "libboost", "libEditor"})
        ASSERT_THAT(loadedLibraries(), Not(Contains(HasSubstr(name))));
    for (int round = 1; round <= 2; ++round) {
        void * const library = dlopen(EDITOREFFECTS_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(library, nullptr) << dlerror() << " in round " << round;
        // The type information by which a host's ColorMixField is known, and no class behind it.
        EXPECT_NE(dlsym(library, "_ZTIN6Effect13ColorMixFieldE"), nullptr);
        EXPECT_EQ(dlsym(library, "_ZTVN6Effect13ColorMixFieldE"), nullptr);
        ASSERT_EQ(dlclose(library), 0) << dlerror();
        // It has gone, and is not merely closed.
        EXPECT_THAT(loadedLibraries(), Not(Contains(HasSubstr("libEditorEffects.so")))) << "in round " << round;
    }
}

TEST(Load, LibrarySaysItsVersionAsItsHeadersAndItsNameDo)
{
    void * const library = dlopen(EDITOREFFECTS_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    auto const version = reinterpret_cast<int (*)()>(dlsym(library, "_ZN6Effect7versionEv"));
    auto const versionString = reinterpret_cast<char const * (*)()>(dlsym(library, "_ZN6Effect13versionStringEv"));
    ASSERT_NE(version, nullptr);
    ASSERT_NE(versionString, nullptr);
    EXPECT_EQ(version(), EDITOREFFECTS_VERSION);
    EXPECT_STREQ(versionString(), EDITOREFFECTS_VERSION_STRING);
    ASSERT_EQ(dlclose(library), 0) << dlerror();

    EXPECT_EQ(std::to_string(EDITOREFFECTS_VERSION_MAJOR) + '.' + std::to_string(EDITOREFFECTS_VERSION_MINOR) + '.' +
                  std::to_string(EDITOREFFECTS_VERSION_PATCH),
        EDITOREFFECTS_VERSION_STRING);
    // The library's file is named libEditorEffects.so.VERSION, whichever link leads to it.
    EXPECT_THAT(std::filesystem::canonical(EDITOREFFECTS_LIBRARY).string(),
        EndsWith("libEditorEffects.so." EDITOREFFECTS_VERSION_STRING));
}

TEST(Version, NumbersCompareAsVersionsDo)
{
    EXPECT_EQ(EDITOREFFECTS_MAKE_VERSION(12, 3, 45), 12'003'045);
    EXPECT_LT(EDITOREFFECTS_MAKE_VERSION(1, 9, 999), EDITOREFFECTS_MAKE_VERSION(1, 10, 0));
    EXPECT_LT(EDITOREFFECTS_MAKE_VERSION(1, 999, 999), EDITOREFFECTS_MAKE_VERSION(2, 0, 0));
}

TEST(Load, PluginThatUsesTheLibraryFindsEveryEffectEachTime)
{
    // Every archived class but the records, which are parts of effects.
    constexpr int effects = 0
#define ROW_CLASS(Class, Base) +1
#define ROW_RECORD(Class) -1
#define ROWS <support/AllFamilies.def>
#include <effects/Rows.h>
        ;
    for (int round = 1; round <= 2; ++round) {
        void * const plugin = dlopen(EDITOREFFECTS_PLUGIN, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(plugin, nullptr) << dlerror() << " in round " << round;
        auto const archiveEveryEffect = reinterpret_cast<int (*)()>(dlsym(plugin, "archiveEveryEffect"));
        ASSERT_NE(archiveEveryEffect, nullptr) << dlerror();
        EXPECT_EQ(archiveEveryEffect(), effects) << "in round " << round;
        ASSERT_EQ(dlclose(plugin), 0) << dlerror();
        EXPECT_THAT(loadedLibraries(), Not(Contains(HasSubstr("libEditorEffects.so")))) << "in round " << round;
    }
}

} // namespace
