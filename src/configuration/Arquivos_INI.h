#pragma once

#include <QString>

/// A value as text, at most 254 characters, untrimmed; empty when there is none.
QString Ler_INI(const QString &file, const QString &section, const QString &key);

/// Sets a value; a file that cannot be written loses it without a word.
void Gravar_INI(const QString &file, const QString &section, const QString &key, const QString &value);
