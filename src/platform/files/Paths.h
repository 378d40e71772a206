#pragma once

#include <QString>

/// The path as this system spells it: "\" and doubled separators become one "/", and every component that does not
/// exist as written is looked for without regard to case. A component that is nowhere stays as written.
QString resolveIgnoringCase(const QString &path);

/// Attributes of a file or folder: 16 for a folder, 1 for a read-only file, 32 otherwise. Raises FileNotFound.
int GetAttr(const QString &path);

/// Name of the file that the path names, as the disk spells it; empty when there is none or when it is a folder.
/// Raises BadFileName when the folder is unreachable.
QString Dir(const QString &path, int attributes = 0);

/// Deletes a file. Raises FileNotFound or PathAccess.
void Kill(const QString &path);

/// Copies a file over another, which is replaced whole or not at all; `rightsOf` as for `writeWholeFile`. Raises
/// FileNotFound or PathAccess.
void FileCopy(const QString &from, const QString &to, const QString &rightsOf = {});

/// The current folder.
QString CurDir();
