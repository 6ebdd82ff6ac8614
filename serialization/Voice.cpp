#include <effects/Voice.h>

#define FAMILY Voice
#include "Family.h"
