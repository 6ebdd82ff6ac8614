/// @file
/// Every class of the library, for typed tests.
#pragma once

#include <effects/Effects.h>
#include <effects/HiddenFamilies.h>

#include <gtest/gtest.h>

namespace Testing {

namespace Detail {

template <class First, class... Rest> testing::Types<Rest...> withoutFirst(testing::Types<First, Rest...>);

} // namespace Detail

/// Each class in the families' .def files.
using AllClasses = decltype(Detail::withoutFirst(testing::Types<void
#define ROW_CLASS(Class, Base) , Effect::Class
#define ROWS <support/AllFamilies.def>
#include <effects/Rows.h>
    >()));

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
