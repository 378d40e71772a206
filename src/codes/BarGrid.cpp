#include "codes/BarGrid.h"

#include "platform/print/RecordedPage.h"

#include <cmath>

namespace {
constexpr int usualStepsPerInch = 600;
/// Fractions up to here fall. A bit more than a half, as the narrow bar of 2.54 dots at 203 to the inch has to be 2:
/// with 3, not three in five labels are read. Ink spreads, too.
constexpr double fallingFraction = 0.55;
constexpr double trimmedDots = 0.1;

bool isCoarse(int dotsPerInch)
{
    return dotsPerInch > 0 && dotsPerInch < usualStepsPerInch;
}
} // namespace

BarGrid::BarGrid(int dotsPerInch)
    : m_step(double(twipsPerInch) / (isCoarse(dotsPerInch) ? dotsPerInch : usualStepsPerInch))
    , m_known(isCoarse(dotsPerInch))
{
}

double BarGrid::left(double twips) const
{
    return m_known ? std::round(twips / m_step) * m_step : twips;
}

double BarGrid::width(double twips) const
{
    return std::ceil(twips / m_step - fallingFraction) * m_step;
}

double BarGrid::trim() const
{
    return m_known ? trimmedDots * m_step : 0;
}
