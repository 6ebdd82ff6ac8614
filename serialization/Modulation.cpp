#include <effects/Modulation.h>

#define FAMILY Modulation
#include "Family.h"
