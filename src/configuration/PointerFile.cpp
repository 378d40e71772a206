#include "configuration/PointerFile.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/IniProfile.h"
#include "platform/files/Paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {
constexpr auto folderName = "/morvelane";
constexpr int longestFolders = 500;

QFileInfo pointerIn(const QString &folder)
{
    return QFileInfo(resolveIgnoringCase(folder + '/' + pointerFileName));
}
} // namespace

PointerPlaces PointerPlaces::onThisComputer()
{
    // The computer's own folders come last, after the user's and the desktop's.
    return {QCoreApplication::applicationDirPath(),
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + folderName,
            QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation).constLast() + folderName};
}

QString PointerPlaces::folder() const
{
    if (pointerIn(besideProgram).exists())
        return besideProgram;
    QDir().mkpath(ofUser);
    const QFileInfo own = pointerIn(ofUser);
    const QFileInfo everyones = pointerIn(ofEveryone);
    if (everyones.exists() && (!own.exists() || own.lastModified() < everyones.lastModified()))
        OnErrorResumeNext([&] { FileCopy(everyones.filePath(), own.filePath()); });
    return ofUser;
}

QStringList PointerPlaces::portFolders() const
{
    return GetPrivateProfileString("Ports", "Folders", {}, longestFolders, ofEveryone + '/' + pointerFileName)
        .split(';');
}

void followPointerFile()
{
    Machine::current().programFolder = [] { return PointerPlaces::onThisComputer().folder(); };
    Machine::current().portFolders = [] { return PointerPlaces::onThisComputer().portFolders(); };
}
