#pragma once

#include "platform/jet/Database.h"

/// Opens data files.
class Workspace
{
public:
    /// `connect` is ";PWD=" and the password. Raises CannotOpenFile, or UnrecognisedFormat for a file that is no data
    /// file or has another password.
    DatabaseHandle OpenDatabase(const QString &path, bool exclusive, bool readOnly, const QString &connect);
};

class DBEngine
{
public:
    static Workspace &Workspaces(int index);
    /// Makes a new, empty data file; raises when the path exists.
    static DatabaseHandle CreateDatabase(const QString &path, const QString &connect);
    /// Raises for a file that the engine cannot mend.
    static void RepairDatabase(const QString &path);
    /// Writes a compacted copy to a path that does not exist yet; `connect` holds both files' password behind a locale
    /// text.
    static void CompactDatabase(const QString &from, const QString &to, const QString &locale, bool options,
                                const QString &connect);
};
