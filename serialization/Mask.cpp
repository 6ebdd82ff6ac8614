#include <effects/Mask.h>

#define FAMILY Mask
#include "Family.h"
