#pragma once

#include <QFile>
#include <QString>

/// A text file, or the printer port of that name, opened for output line by line.
///
/// Lines end in CR LF and are written in Windows-1252, as the printers and programs behind these files expect. What
/// takes no text, a printer that is off line above all, is waited for, 10 seconds at most from `Open` to `Close`.
class TextOutput
{
public:
    /// Opens a file that somebody chose, wherever it lies, or the device of LPT1 to LPT9. Raises DeviceUnavailable or
    /// PathAccess; a port name never becomes a file.
    void Open(const QString &name);
    /// Opens a port that a shared configuration names; see `openPortFile`. Raises DeviceUnavailable.
    void OpenPort(const QString &name);
    /// Writes one line. Raises when nothing is open or the device refuses.
    void Print(const QString &line = {});
    /// Raises when the last bytes could not be written; closed in any case.
    void Close();
    bool isOpen() const { return m_file.isOpen(); }

private:
    /// Takes a descriptor over.
    void use(int descriptor);
    /// Lets a moment of the patience pass; false when none is left.
    bool wait();

    QFile m_file;
    int m_waitsLeft = 0;
};

/// Writes empty lines to an open text file, each whether or not those before it came out; none for a count below 1.
void Linhas_Em_Branco(int count, TextOutput &file);
