#include <EditorModel/Fuzzy.h>

#include <algorithm>
#include <cmath>

bool fuzzyEqual(double a, double b)
{
    double const sizeA = std::abs(a);
    double const sizeB = std::abs(b);
    if (sizeA <= 1e-12 && sizeB <= 1e-12)
        return true;
    return std::abs(a - b) * 1e12 <= std::min(sizeA, sizeB);
}
