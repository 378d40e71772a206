#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <functional>

/// Everything of the computer that a test must be able to replace: time, chance, devices.
///
/// The program asks `Machine::current()` and nothing else for these.
struct Machine
{
    Machine();

    /// Folder of the program's own file. The executable's unless the program names another.
    std::function<QString()> programFolder;
    std::function<QDateTime()> now;
    std::function<void(int milliseconds)> sleep;
    /// A number from 0 up to 1, from a generator that is seeded from the clock anew for each.
    std::function<double()> random;
    /// Starts to play a wave file and returns at once; never waits for a sound server.
    std::function<void(const QString &path)> playWave;
    /// Device file behind printer port LPT<n>; an empty text when the computer has no such device.
    std::function<QString(int port)> portDevice;
    /// Folders in which the computer's owner lets printouts for a port become files.
    std::function<QStringList()> portFolders;
    /// Names of the installed printers, in the system's order.
    std::function<QStringList()> printerNames;
    /// Name of the system's default printer; an empty text when there is none.
    std::function<QString()> defaultPrinterName;
    /// Folder for printouts on a computer without a printer.
    std::function<QString()> printoutFolder;
    /// The program that owns the camera while one is used; an empty text where there is none.
    std::function<QString()> cameraProgram;
    /// Shows a file with the desktop's own viewer.
    std::function<void(const QString &path)> openDocument;

    static Machine &current();
};
