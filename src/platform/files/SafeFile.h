#pragma once

#include <QSaveFile>
#include <QString>

/// Puts a written file into the place of its forerunner, if every byte of it is on the disk for good. Qt's own commit
/// minds neither a disk that is full at the last flush nor one that fails to take the bytes.
bool commitForGood(QSaveFile &file);

/// Writes a file whole or not at all. Raises PathAccess.
void writeWholeFile(const QString &path, const QByteArray &content);
