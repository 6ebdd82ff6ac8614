#include <effects/Geometry.h>

#define FAMILY Geometry
#include "Family.h"
