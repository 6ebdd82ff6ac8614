#include <effects/ColorFilters.h>

#define FAMILY ColorFilters
#include "Family.h"
