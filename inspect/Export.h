#pragma once

/// What the library exports; everything else in it is hidden.
#define EFFECTS_INSPECT_API __attribute__((visibility("default")))
