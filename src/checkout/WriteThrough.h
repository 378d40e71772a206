#pragma once

#include <QString>

class QCheckBox;

/// Binds a tick box to a key of `config.ini`: each click of the attendant writes "1" or "0" there at once.
void writeThrough(QCheckBox *box, const QString &section, const QString &key);
/// Ticks the box where the key says "1".
void tickAsStored(QCheckBox *box, const QString &section, const QString &key);
