#include "bench/Figures.h"

#include <QElapsedTimer>
#include <QTextStream>

#include <algorithm>
#include <vector>

namespace {
double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}
} // namespace

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

double ratioOfMedians(int rounds, const std::function<double()> &ours, const std::function<double()> &reference)
{
    // The first turn of each side warms caches and is not counted.
    ours();
    reference();
    std::vector<double> ourTimes;
    std::vector<double> referenceTimes;
    for (int round = 0; round < rounds; ++round) {
        ourTimes.push_back(ours());
        referenceTimes.push_back(reference());
    }
    return median(ourTimes) / median(referenceTimes);
}

FigureTable::FigureTable()
{
    printRow("Figure, as a ratio to a bare reference unless it says otherwise", "measured", "limit", "");
}

FigureTable::~FigureTable()
{
    QTextStream(stdout) << m_passed << " passed, " << m_failed << " failed" << Qt::endl;
}

void FigureTable::add(const QString &name, double value, double limit)
{
    const bool ok = value <= limit;
    ++(ok ? m_passed : m_failed);
    printRow(name, QString::number(value, 'f', 2), QString::number(limit, 'f', 1), ok ? "pass" : "FAIL");
}

void FigureTable::printRow(const QString &name, const QString &value, const QString &limit, const QString &verdict)
{
    constexpr int nameWidth = 72;
    constexpr int numberWidth = 10;
    // Each figure is shown as soon as it is known: all of them take some minutes.
    QTextStream(stdout) << name.leftJustified(nameWidth) << value.rightJustified(numberWidth)
                        << limit.rightJustified(numberWidth) << "  " << verdict << Qt::endl;
}
