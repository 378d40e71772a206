#pragma once

#include "platform/jet/Database.h"

#include <QString>
#include <QStringList>

// A café folder: the shared data file with its configuration, language files, photos and till sound. What fails raises
// a RunTimeError whose description is one line for a person to read.

/// What a new café folder holds. The three counts apply to a demo café alone.
struct CafeOptions
{
    bool demo = false;
    int customers = 300;
    int products = 150; ///< besides the reserved one
    int sales = 0;      ///< lines sold in past cash periods
    bool oti = false;   ///< with the table that only some data files hold
};

/// A number of 0 stands for a café that has had no cash period yet.
struct CashPeriod
{
    qint64 number = 0;
    bool open = false;
};

/// Lays out a new café folder; there is either the whole folder afterwards or none.
void createCafe(const QString &folder, const CafeOptions &options);

QString dataFileOf(const QString &folder);
QString configFileOf(const QString &folder);
DatabaseHandle openDataFile(const QString &folder);

CashPeriod tillStatus(const QString &folder);
/// Opens the next cash period; raises when the newest one is open.
CashPeriod openTill(const QString &folder);
/// Closes the newest cash period; raises when none is open.
CashPeriod closeTill(const QString &folder);

/// Lets terminals run on this café, or blocks them.
void allowModule(const QString &folder, bool allowed);

enum class PointFor
{
    User,    ///< who runs the tool
    Everyone ///< who has an account on this computer
};
/// Writes the file that leads the terminal to this café, and answers its path.
QString pointAt(const QString &folder, PointFor whom);

/// Faults of the data file, the configuration files and the language files, one line each; empty when all is sound.
QStringList checkCafe(const QString &folder);

/// Brings the design of a data file up to date that this tool made before. The answer names, a line each, the texts
/// that not every computer reads alike, and the numbers that they are by this computer's regional settings.
QStringList upgradeCafe(const QString &folder);

/// Writes a consistent, encrypted copy of the data file while terminals work on it. Never replaces a file.
void backupCafe(const QString &folder, const QString &file);
