#include <effects/Distortion.h>

#define FAMILY Distortion
#include "Family.h"
