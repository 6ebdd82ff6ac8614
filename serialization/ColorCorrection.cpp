#include <effects/ColorCorrection.h>

#define FAMILY ColorCorrection
#include "Family.h"
