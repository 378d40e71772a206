#include "bench/Figures.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTextStream>

#include <algorithm>
#include <cmath>

namespace {
constexpr int pairs = 15;
/// Spread between the quartiles, as a part of the median, above which a figure tells nothing.
constexpr double widestSpread = 0.25;
/// A reference that is beaten by more than the noise does something that it need not do.
constexpr double leastRatio = 0.95;

void printRow(const QString &name, const QStringList &numbers, const QString &verdict)
{
    constexpr int nameWidth = 60;
    constexpr int numberWidth = 8;
    QString line = name.leftJustified(nameWidth);
    for (const QString &number : numbers)
        line += number.rightJustified(numberWidth);
    // Each figure is shown as soon as it is known: all of them take some minutes.
    QTextStream(stdout) << line << "  " << verdict << Qt::endl;
}
} // namespace

Quartiles quartilesOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const auto at = [&values](double part) {
        const double place = part * static_cast<double>(values.size() - 1);
        const auto below = static_cast<std::size_t>(place);
        const std::size_t above = std::min(below + 1, values.size() - 1);
        return std::lerp(values[below], values[above], place - std::floor(place));
    };
    return {at(0.25), at(0.5), at(0.75)};
}

double secondsOf(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

Quartiles ratiosOfPairs(const std::function<double()> &ours, const std::function<double()> &reference)
{
    const auto ratio = [&] {
        const double our = ours();
        return our / reference();
    };
    // The first pair warms caches and is not counted.
    ratio();
    return repeated(ratio);
}

Quartiles repeated(const std::function<double()> &amount)
{
    std::vector<double> values(pairs);
    std::generate(values.begin(), values.end(), amount);
    return quartilesOf(values);
}

FigureTable::FigureTable()
{
    printRow("Figure, as a ratio to bare code unless it says otherwise", {"lower", "median", "upper", "limit"}, "");
}

FigureTable::~FigureTable()
{
    QTextStream(stdout) << m_passed << " passed, " << m_failed << " failed, " << m_noisy << " too noisy to tell"
                        << Qt::endl;
}

void FigureTable::add(const QString &name, const Quartiles &ratio, double limit)
{
    judge(name, ratio, limit, leastRatio);
}

void FigureTable::addAmount(const QString &name, const Quartiles &amount, double limit)
{
    judge(name, amount, limit, 0);
}

int FigureTable::exitCode() const
{
    constexpr int failed = 1;
    constexpr int noisy = 3;
    return m_failed > 0 ? failed : m_noisy > 0 ? noisy : 0;
}

void FigureTable::judge(const QString &name, const Quartiles &value, double limit, double least)
{
    QString verdict;
    if (value.upper - value.lower > widestSpread * value.median) {
        ++m_noisy;
        verdict = "noisy";
    } else if (value.median < least) {
        ++m_failed;
        verdict = "FAIL: the reference is wrong";
    } else if (value.upper > limit) {
        ++m_failed;
        verdict = "FAIL";
    } else {
        ++m_passed;
        verdict = "pass";
    }
    const auto number = [](double each) { return QString::number(each, 'f', 2); };
    printRow(name, {number(value.lower), number(value.median), number(value.upper), number(limit)}, verdict);
}
