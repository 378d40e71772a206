#pragma once

#include <QString>

#include <functional>

/// Seconds that a piece of work takes.
double secondsOf(const std::function<void()> &work);

/// The two sides of one figure, run in turn; the ratio of their medians, so that a noisy machine troubles both alike.
double ratioOfMedians(int rounds, const std::function<double()> &ours, const std::function<double()> &reference);

/// Prints the table, a line a figure with its limit and whether it passes, and counts both kinds at the end.
class FigureTable
{
public:
    FigureTable();
    ~FigureTable();
    Q_DISABLE_COPY_MOVE(FigureTable)

    void add(const QString &name, double value, double limit);
    bool allWithinLimits() const { return m_failed == 0; }

private:
    static void printRow(const QString &name, const QString &value, const QString &limit, const QString &verdict);

    int m_passed = 0;
    int m_failed = 0;
};
