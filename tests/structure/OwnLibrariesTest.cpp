// The loader takes two libraries of one SONAME for the same library, and some of the editor's have common words for
// names.

#include <filesystem>

#include <dlfcn.h>

#include <gtest/gtest.h>

namespace {

TEST(OwnLibraries, TheLibraryLoadsBesideTheHostsOwnOfTheSameNames)
{
    int count = 0;
    for (auto const & file : std::filesystem::directory_iterator(OWN_LIBRARIES)) {
        if (file.path().extension() != ".so")
            continue;
        ASSERT_NE(dlopen(file.path().c_str(), RTLD_NOW | RTLD_GLOBAL), nullptr) << dlerror();
        ++count;
    }
    EXPECT_EQ(count, 11);
    EXPECT_NE(dlopen(EDITOREFFECTS_LIBRARY, RTLD_NOW | RTLD_LOCAL), nullptr) << dlerror();
}

} // namespace
