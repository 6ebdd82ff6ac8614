#pragma once

/// What the shared library exports; everything else in it is hidden.
#define EFFECTS_API __attribute__((visibility("default")))
