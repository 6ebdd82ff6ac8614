#include <effects/Shaders.h>

#define FAMILY Shaders
#include "Family.h"
