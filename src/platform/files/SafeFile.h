#pragma once

#include <QByteArray>
#include <QString>

#include <sys/types.h>

// Files in a folder where others write, too: what stands at a name may be a pipe or somebody's link.

/// Content of a regular file. A link is followed no further than its own folder. Raises FileNotFound for everything
/// that is no such file, at once for a pipe as well, and PathAccess for one that cannot be read to its end.
QByteArray readRegularFile(const QString &path);

/// Writes a file whole or not at all, on the disk for good. A link at its name is replaced and never followed. What was
/// there keeps its rights and its group; a new file takes the folder's group and the rights of the file `rightsOf`, or
/// the folder's own when there is no such file. Raises PathAccess, for a path that names no folder, too.
void writeWholeFile(const QString &path, const QByteArray &content, const QString &rightsOf = {});

/// Whether a path leads through any folder below the root.
bool namesFolder(const QString &path);

/// Sets rights and group. A file that can't be given to the group gives its own group no more than it gives strangers.
void giveRights(int descriptor, mode_t rights, gid_t group);
