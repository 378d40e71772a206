#pragma once

#include <QByteArray>
#include <QString>

/// Text of the code page that Windows programs of Western Europe and America read and write.
QString fromWindows1252(QByteArrayView bytes);

/// Writes "?" for a character that the code page lacks, as Windows does.
QByteArray toWindows1252(QStringView text);
