/// @file
/// The comparison of doubles that the model uses.
#pragma once

#include <EditorModel/Export.h>

/// Whether two doubles are equal for the model: both at most 1e-12 in size, or their difference times 1e12 at most the
/// smaller size. Against zero that is: at most 1e-12 in size. A NaN equals nothing. Infinities do not compare
/// usefully: one is unequal to itself and equal to its opposite.
EDITORMODEL_EXPORT bool fuzzyEqual(double a, double b);
