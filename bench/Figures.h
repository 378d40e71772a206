#pragma once

#include <QString>

#include <functional>

/// Seconds that a piece of work takes.
double secondsOf(const std::function<void()> &work);

/// The two sides of one figure, run in turn; the ratio of their medians, so that a noisy machine troubles both alike.
double ratioOfMedians(int rounds, const std::function<double()> &ours, const std::function<double()> &reference);

/// Prints one line a figure, with its limit, and remembers whether one was over.
class FigureTable
{
public:
    void add(const QString &name, double value, double limit);
    bool allWithinLimits() const { return m_allWithinLimits; }

private:
    bool m_allWithinLimits = true;
};
