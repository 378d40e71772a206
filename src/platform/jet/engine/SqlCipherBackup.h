#pragma once

#include "platform/jet/engine/SqlCipherConnection.h"

/// Writes a copy with the same password. It appears under its name only when it is whole and on the disk.
void backupSqlCipherFile(SqlCipherConnection &source, const QString &path);
