#include <effects/Light.h>

#define FAMILY Light
#include "Family.h"
