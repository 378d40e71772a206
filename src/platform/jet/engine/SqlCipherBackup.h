#pragma once

#include "platform/jet/engine/SqlCipherConnection.h"

/// Writes a copy with the same password and at most the file's rights. It appears under its name only when it is whole
/// and on the disk, and never in the place of another file.
void backupSqlCipherFile(SqlCipherConnection &source, const QString &path);
