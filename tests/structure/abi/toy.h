#pragma once

#include <memory>

struct Private;

/// A public type, whose size is part of the interface.
struct Box
{
    int width = 1;
    int height = 1;
#ifdef CHANGED_TYPE
    int depth = 1;
#endif
    std::shared_ptr<Private> rest;
};

int area(Box const & box);
#ifndef REMOVED_FUNCTION
int perimeter(Box const & box);
#endif
#ifdef ADDED_FUNCTION
int diagonal(Box const & box);
#endif
