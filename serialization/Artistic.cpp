#include <effects/Artistic.h>

#define FAMILY Artistic
#include "Family.h"
