# What Doxygen reads of a header: the same, with a comment in front of what is said the same way in every class. No
# line is added or taken away, so that its messages have the right line numbers.

# Copy and move operations that are as the compiler makes them say nothing: a class without them says so.
s/^.*\((const )?[A-Za-z]+( const)? ?&&?\)( noexcept)? = default;$//
s/^( *)([A-Z][A-Za-z]+ \* set[A-Z].*;)$/\1\/** Stores the value and returns this effect, for chaining. *\/ \2/
s/^( *)(.*operator!=\()/\1\/** The opposite of equal. *\/ \2/
s/^( *)(static (constexpr )?char const \* NameInArchive\(\))/\1\/** The class's archive name. *\/ \2/
# Doxygen cannot include a file whose name is a macro: the constants of the rows are in docs/reference.md.
s/^#include <effects\/Rows\.h>$//
