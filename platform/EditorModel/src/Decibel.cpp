#include <EditorModel/Decibel.h>

#include <cmath>

double Decibel::toRelativeLevel() const
{
    return std::pow(10.0, m_decibels / 20.0);
}
