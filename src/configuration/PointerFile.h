#pragma once

#include <QString>
#include <QStringList>

/// The places of a computer in which the file that leads to the shared folder may lie.
struct PointerPlaces
{
    QString besideProgram; ///< folder of the executable
    QString ofUser;        ///< folder in which this user's installed program keeps what it writes
    QString ofEveryone;    ///< folder that the computer's owner fills for all users

    static PointerPlaces onThisComputer();

    /// The folder from which the pointer is read and into which it is written. It is the executable's when the pointer
    /// lies there, as in a copy that somebody carries or shares. Otherwise it is the user's: an installed program lies
    /// where only the owner may write. That one is made when missing, and takes over everyone's pointer as long as it
    /// has none or an older one, so that an owner points all users at once and can do so again.
    QString folder() const;
    /// Folders in which the owner lets receipts become files: `[Ports]` `Folders`, separated by ";". A carried copy's
    /// own pointer file may lie on a share, so everyone's alone counts.
    QStringList portFolders() const;
};

constexpr auto pointerFileName = "ConfigIni.txt";

/// Lets the pointer file of this computer say where the program's own folder is, and which hold ports.
void followPointerFile();
