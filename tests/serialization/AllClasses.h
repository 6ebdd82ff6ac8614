/// @file
/// Every class of the library, for typed tests.
#pragma once

#include <effects/Artistic.h>
#include <effects/Blur.h>
#include <effects/ClassList.h>
#include <effects/ColorFilters.h>
#include <effects/Distortion.h>
#include <effects/Effects.h>
#include <effects/Light.h>
#include <effects/Mirroring.h>
#include <effects/Retro.h>
#include <effects/Voice.h>

#include <gtest/gtest.h>

namespace Testing {

namespace Detail {

template <class First, class... Rest> testing::Types<Rest...> withoutFirst(testing::Types<First, Rest...>);

} // namespace Detail

#define EDITOR_LISTED(Class) , Effect::Class
/// Each of the classes in effects/ClassList.h.
using AllClasses = decltype(Detail::withoutFirst(testing::Types<void EFFECTS_ALL(EDITOR_LISTED)>()));
#undef EDITOR_LISTED

/// Names a typed test after its class.
struct ClassName
{
    template <class Class> static std::string GetName(int)
    {
        std::string name = Class::NameInArchive();
        for (char & letter : name)
            letter = letter == ':' ? '_' : letter;
        return name;
    }
};

} // namespace Testing
