#include <effects/Mirroring.h>

#define FAMILY Mirroring
#include "Family.h"
