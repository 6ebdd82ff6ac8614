// This program has nothing of the library, neither linked nor defined: it loads it, as a plug-in host would.

#include <dlfcn.h>

#include <gtest/gtest.h>

namespace {

TEST(EditorEffects, LoadsWithEveryReferenceResolved)
{
    void * const library = dlopen(EDITOREFFECTS_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    // The type information by which a host's ColorMixField is known, and no class behind it.
    EXPECT_NE(dlsym(library, "_ZTIN6Effect13ColorMixFieldE"), nullptr);
    EXPECT_EQ(dlsym(library, "_ZTVN6Effect13ColorMixFieldE"), nullptr);
    EXPECT_EQ(dlclose(library), 0);
}

} // namespace
