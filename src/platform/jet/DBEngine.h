#pragma once

#include "platform/jet/Database.h"

/// Opens data files.
class Workspace
{
public:
    /// `connect` is ";PWD=" and the password. Raises CannotOpenFile, or UnrecognisedFormat for a file that is no data
    /// file or has another password. The two flags, exclusive and read-only, are false wherever files are opened and
    /// aren't looked at.
    DatabaseHandle OpenDatabase(const QString &path, bool, bool, const QString &connect);
};

class DBEngine
{
public:
    /// The one workspace, whatever the index.
    static Workspace &Workspaces(int);
    /// Makes a new, empty data file; raises when the path exists.
    static DatabaseHandle CreateDatabase(const QString &path, const QString &connect);
};
