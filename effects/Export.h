#pragma once

/// What the shared library exports; everything else in it is hidden.
#define EFFECTS_API __attribute__((visibility("default")))

/// What an exported class keeps to the library all the same.
#define EFFECTS_HIDDEN __attribute__((visibility("hidden")))
