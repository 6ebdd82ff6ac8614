#include <effects/Holder.h>

#define FAMILY Holder
#include "Family.h"
