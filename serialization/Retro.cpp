#include <effects/Retro.h>

#define FAMILY Retro
#include "Family.h"
