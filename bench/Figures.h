#pragma once

#include <QString>

#include <functional>
#include <vector>

/// How a figure came out over all of its pairs.
struct Quartiles
{
    double lower = 0;
    double median = 0;
    double upper = 0;
};

Quartiles quartilesOf(std::vector<double> values);

/// Seconds that a piece of work takes.
double secondsOf(const std::function<void()> &work);

/// Both sides of a figure in turn, pair by pair, so that a noisy machine troubles both alike; the ratio of each pair.
Quartiles ratiosOfPairs(const std::function<double()> &ours, const std::function<double()> &reference);
/// An amount without a reference, taken again and again.
Quartiles repeated(const std::function<double()> &amount);

/// Prints the table, a line a figure with its quartiles, its limit and the verdict, and counts the verdicts at the end.
class FigureTable
{
public:
    FigureTable();
    ~FigureTable();
    Q_DISABLE_COPY_MOVE(FigureTable)

    /// A ratio: one that is far below 1 fails too, because then the reference is not the fastest way.
    void add(const QString &name, const Quartiles &ratio, double limit);
    void addAmount(const QString &name, const Quartiles &amount, double limit);
    /// 0 when all figures pass, 1 when one fails, 3 when none fails but one is too noisy to tell.
    int exitCode() const;

private:
    void judge(const QString &name, const Quartiles &value, double limit, double least);

    int m_passed = 0;
    int m_failed = 0;
    int m_noisy = 0;
};
