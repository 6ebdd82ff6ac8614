#include "toy.h"

/// Not in a header: no other library sees it.
struct Private
{
    int weight = 1;
#ifdef CHANGED_PRIVATE_TYPE
    double price = 1;
#endif
};

int area(Box const & box)
{
    return box.width * box.height * (box.rest ? box.rest->weight : 1);
}

#ifndef REMOVED_FUNCTION
int perimeter(Box const & box)
{
    return 2 * (box.width + box.height);
}
#endif

#ifdef ADDED_FUNCTION
int diagonal(Box const & box)
{
    return box.width + box.height;
}
#endif
