// Reads the rows of the families' .def files, any number of times: no include guard.
//
// Define ROWS, the file, as `<effects/Blur.def>` or `"effects/Blur.def"`, and those of the following that are wanted;
// all of them are undefined again at the end.
//
//   ROW_CLASS(Class, Base)                  every class, with its base in the archives; `void` for none
//   ROW_RECORD(Class)                       those of them that are no effects
//   ROW_CONSTRUCTOR(Class, Base, Id, Tag)   classes whose default constructor is the usual one
//   ROW_FILTER(Class, Tag)                  classes with an intensity and their own default tag
//   ROW_ID(Name, value)                     constants of Effect::Id
//   ROW_TAG(Name, value)                    constants of Effect::Tags
//
// The rows, whose values are in users' projects and never change:
//
//   EFFECT(Class, Base, IdName, id, TagName, tag)         an effect
//   FILTER(Class, Base, IdName, id, TagName, tag)         one declared with EFFECT_FILTER_CLASS
//   EFFECT_BUILT(...), FILTER_BUILT(...)                  the same, where the family's source defines the constructor
//   EFFECT_UNTAGGED(Class, Base, IdName, id)              an effect whose tag is empty; its source constructs it
//   BASE(Class, Base)                                     a class between Effect::Object and the effects
//   RECORD(Class, Base)                                   no effect: part of one
//   IDENTITY(IdName, id, TagName, tag)                    constants without a class

#ifndef ROW_CLASS
#define ROW_CLASS(Class, Base)
#endif
#ifndef ROW_RECORD
#define ROW_RECORD(Class)
#endif
#ifndef ROW_CONSTRUCTOR
#define ROW_CONSTRUCTOR(Class, Base, Id, Tag)
#endif
#ifndef ROW_FILTER
#define ROW_FILTER(Class, Tag)
#endif
#ifndef ROW_ID
#define ROW_ID(Name, value)
#endif
#ifndef ROW_TAG
#define ROW_TAG(Name, value)
#endif

#define IDENTITY(IdName, id, TagName, tag) ROW_ID(IdName, id) ROW_TAG(TagName, tag)
#define EFFECT_BUILT(Class, Base, IdName, id, TagName, tag) ROW_CLASS(Class, Base) IDENTITY(IdName, id, TagName, tag)
#define FILTER_BUILT(Class, Base, IdName, id, TagName, tag)                                                            \
    EFFECT_BUILT(Class, Base, IdName, id, TagName, tag) ROW_FILTER(Class, TagName)
#define EFFECT(Class, Base, IdName, id, TagName, tag)                                                                  \
    EFFECT_BUILT(Class, Base, IdName, id, TagName, tag) ROW_CONSTRUCTOR(Class, Base, IdName, TagName)
#define FILTER(Class, Base, IdName, id, TagName, tag)                                                                  \
    FILTER_BUILT(Class, Base, IdName, id, TagName, tag) ROW_CONSTRUCTOR(Class, Base, IdName, TagName)
#define EFFECT_UNTAGGED(Class, Base, IdName, id) ROW_CLASS(Class, Base) ROW_ID(IdName, id)
#define BASE(Class, Base) ROW_CLASS(Class, Base)
#define RECORD(Class, Base) ROW_CLASS(Class, Base) ROW_RECORD(Class)

#include ROWS

#undef RECORD
#undef BASE
#undef EFFECT_UNTAGGED
#undef FILTER
#undef EFFECT
#undef FILTER_BUILT
#undef EFFECT_BUILT
#undef IDENTITY
#undef ROW_TAG
#undef ROW_ID
#undef ROW_FILTER
#undef ROW_CONSTRUCTOR
#undef ROW_RECORD
#undef ROW_CLASS
#undef ROWS
