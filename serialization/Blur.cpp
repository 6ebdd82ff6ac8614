#include <effects/Blur.h>

#define FAMILY Blur
#include "Family.h"
