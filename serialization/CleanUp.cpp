#include <effects/CleanUp.h>

#define FAMILY CleanUp
#include "Family.h"
