#pragma once

#include "platform/files/TextOutput.h"

#include <QString>

/// Where a receipt goes: the printer, placed by character, or a port that takes text line by line.
///
/// Each operation says for which of the two it is; on the other it does nothing. A failure is remembered, and the
/// receipt goes on.
class ReceiptDevice
{
public:
    /// Takes the device that the café's configuration names and opens it.
    void open();
    /// Whether anything since `open` failed.
    bool failed() const { return m_failed; }

    /// Printer: sets the receipts' font and the scale in characters.
    void beginPage();
    /// Printer: a text at a column and line.
    void place(int column, int line, const QString &text);
    /// Printer: one character in each of the columns 1 to 98.
    void rule(QChar character, int line);
    /// Printer: goes on with an empty sheet.
    void nextSheet();

    /// Port: one line.
    void write(const QString &line = {});
    /// Port: as many empty lines; none for a count below 1.
    void writeEmptyLines(int count);

    /// Hands the document to the printer, or closes the port.
    void finish(const QString &documentName);

private:
    template <typename Operation>
    void attempt(Operation &&operation);

    bool m_toPort = false;
    bool m_failed = false;
    TextOutput m_port;
};
