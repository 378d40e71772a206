#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <limits>

// The lists of the windows as reports, on the printer in force and in a text file. What the windows do differently is
// given as data.

/// Puts one line on paper or into the file.
using ReportLine = std::function<void(const QString &line)>;

/// The entries of a list, as its window's grid shows them.
struct ListEntries
{
    int count = 0;
    /// Writes one entry; they count from 1.
    std::function<void(int entry, const ReportLine &write)> write;
};

struct PrintedList
{
    QString documentName;
    /// Stands before date and time at the head of each page.
    QString heading;
    /// Column at which the page's number ends.
    int numberEnd = 0;
    /// A page beyond it raises Overflow.
    int lastPage = std::numeric_limits<int>::max();
    /// What an entry adds to the line counter that ends a page; not always what it prints.
    int linesPerEntry = 0;
    ListEntries entries;
    /// Stands below the last entry. It gets the line counter, which begins at 1 on each page.
    std::function<void(int counter, const ReportLine &write)> close;
};

struct SavedList
{
    /// Lines above the date, and the label of the date.
    QStringList heading;
    QString dateLabel;
    ListEntries entries;
    QStringList closing;
};

/// The line of asterisks between a report's parts.
extern const QString reportRule;

/// Prints a list. A failure ends it where it happens, without a word; what stands on paper by then comes out.
void printList(const PrintedList &list);

/// Writes a list over a file. A failure ends it where it happens, without a word; what was written by then stays. True
/// when the whole list was written.
bool saveList(const QString &file, const SavedList &list);
