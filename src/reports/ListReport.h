#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <limits>

class FlexGrid;
class Printer;
class WindowTexts;

// The lists of the windows as reports, on the printer in force and in a text file. What the windows do differently is
// given as data.

/// A piece of a line: a label, and behind it what a column of the list shows.
struct ReportField
{
    static constexpr int NoColumn = -1;

    QString label;
    int column = NoColumn;
    /// The column's text is padded with blanks to so many characters.
    int width = 0;
};
using ReportLine = QList<ReportField>;

/// A line of asterisks between a report's parts.
QString reportRule(int columns);

/// What becomes of a failure within a report. There is never a word about it.
enum class ReportTrap
{
    Ends,  ///< it ends the report; a text that is too long for its width is one
    Skips, ///< the line is left out; a text that is too long moves what stands behind it
};

/// What the printed and the saved list of a window have in common.
struct ListReport
{
    const FlexGrid &grid;
    ReportTrap trap = ReportTrap::Skips;
    /// Characters in a line, as the rules show.
    int columns = 0;
    /// Heads of the columns, with a rule below them; empty for entries with labels of their own.
    QString columnHeads = {};
    /// The lines of one entry.
    QList<ReportLine> lines = {};
};

struct PrintedList : ListReport
{
    QString documentName = {};
    /// Stands before date and time at the head of each page.
    QString heading = {};
    /// Column at which the page's number ends.
    int numberEnd = 0;
    /// A page beyond it raises Overflow.
    int lastPage = std::numeric_limits<int>::max();
    // What head and entries add to the line counter, which begins at 1 on each page; not always what they print.
    int linesOfHead = 0;
    int linesPerEntry = 0;
    /// The lines of an entry stand where the counter says, instead of one below the other: one that is left out leaves
    /// a gap.
    bool placedByCounter = false;
    /// Prints what stands below the last entry; gets the line counter.
    std::function<void(int counter, Printer &printer)> close = {};
};

struct SavedList : ListReport
{
    /// Lines above the date, and the label of the date.
    QStringList heading = {};
    QString dateLabel = {};
    QStringList closing = {};
};

/// Prints a list. What stands on paper by the time of a failure comes out in any case.
void printList(const PrintedList &list);

/// Asks for a file to save a list in, and with the given question whether an existing one may go. Empty for a no.
QString chooseListFile(const WindowTexts &texts, const QString &question, const QString &title);

/// Writes a list over a file. What was written by the time of a failure stays. True when no failure ended it.
bool saveList(const QString &file, const SavedList &list);
