#pragma once

#include <QMarginsF>
#include <QSizeF>
#include <QStringList>

#include <memory>

// What the computer's print system (CUPS) offers. Whoever asks waits for answers of it for some four seconds at most,
// with a sign of life, and PrinterError is raised when none came.

/// Names of the print queues, in the system's order; none where the computer has no print system.
QStringList printQueueNames();
/// Name of the user's default queue, or else the system's; an empty text when there is none.
QString defaultPrintQueue();

/// A sheet of a printer, in twips.
struct PrinterSheet
{
    QSizeF size;
    /// What the printer can't reach; 0 where it doesn't tell.
    QMarginsF blankEdges;
};

/// A print queue for one document. Raises PrinterError where there is none of this name.
class PrintQueue
{
public:
    explicit PrintQueue(const QString &name);
    ~PrintQueue();
    PrintQueue(const PrintQueue &) = delete;
    PrintQueue &operator=(const PrintQueue &) = delete;

    /// Takes the printer's sheet of this size, or else the one that it uses as a rule.
    PrinterSheet takeSheet(const QSizeF &twips);
    /// The printer's resolution; 0 when it doesn't tell.
    int dotsPerInch() const;

    /// Hands over a PDF for the sheet that was taken. Raises PrinterError when the queue refuses it; one that is paused
    /// keeps it for later.
    void print(const QByteArray &pdf, const QString &title);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};
