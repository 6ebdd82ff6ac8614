#include <effects/Dynamics.h>

#define FAMILY Dynamics
#include "Family.h"
