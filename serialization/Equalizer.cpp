#include <effects/Equalizer.h>

#define FAMILY Equalizer
#include "Family.h"
