// Makes the classes of a family known. A family's source includes its header, defines FAMILY, its name, and includes
// this file, which defines what the class macros declare, from the rows of the family's .def file and the classes'
// descriptions. No include guard is needed: one source, one family.

#include <boost/preprocessor/cat.hpp>
#include <boost/preprocessor/stringize.hpp>

#include <effects/PrivateIdentity.h>

#include "ClassRow.h"
#include "Register.h"

#define FAMILY_ROWS BOOST_PP_STRINGIZE(effects/FAMILY.def)

#ifndef FAMILY_IS_BASE // those keys are in Register.h
#define ROW_CLASS(Class, Base) EFFECT_KEY(Class)
#define ROWS FAMILY_ROWS
#include <effects/Rows.h>
#endif

#define ROW_CLASS(Class, Base) EFFECT_REGISTER(Class, Base)
#define ROW_CONSTRUCTOR(Class, Base, IdName, TagName)                                                                  \
    Effect::Class::Class()                                                                                             \
        : Base(Id::IdName, Id::IdName)                                                                                 \
    {                                                                                                                  \
        tag = Tags::TagName;                                                                                           \
    }
#define ROW_FILTER(Class, TagName)                                                                                     \
    bool Effect::Class::hasIntensity() const                                                                           \
    {                                                                                                                  \
        return true;                                                                                                   \
    }                                                                                                                  \
    QString Effect::Class::defaultTag() const                                                                          \
    {                                                                                                                  \
        return Tags::TagName;                                                                                          \
    }
#define ROWS FAMILY_ROWS
#include <effects/Rows.h>

Effect::Schema::ClassRows Effect::Schema::BOOST_PP_CAT(rowsOf, FAMILY)()
{
    static constexpr ClassRow const * rows[] = {
#define ROW_CLASS(Class, Base) &classRow<Effect::Class>,
#define ROWS FAMILY_ROWS
#include <effects/Rows.h>
    };
    return {rows, sizeof rows / sizeof *rows};
}
