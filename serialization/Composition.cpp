#include <effects/Composition.h>

#define FAMILY Composition
#include "Family.h"
