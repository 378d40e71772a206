#pragma once

#include <QString>

/// Opens for output what a port's name in a shared configuration stands for, without ever waiting for it, and answers
/// the descriptor. Whoever can write that configuration must not reach this user's files through it, so a name stands
/// for one of these alone; for anything else, DeviceUnavailable is raised and nothing is touched:
/// - LPT1 to LPT9: the computer's printer devices, which are never created;
/// - a character device;
/// - a file in the folder of the printouts, in the system's temporary folder, or in one that the computer's owner names
///   (`Machine::portFolders`), or below them. It is made, or it is one that was made here and is written anew. A link
///   counts as what it leads to.
int openPortFile(const QString &name);

/// Number of the printer port that a name stands for; 0 for any other name.
int portNumber(const QString &name);

/// Opens the device of a printer port. Raises DeviceUnavailable.
int openPrinterPort(int port);
