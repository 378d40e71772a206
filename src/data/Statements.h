#pragma once

#include <QString>

/// Runs a writing statement on the main handle. Raises when it fails, and when no file is open.
void executeStatement(const QString &sql);
/// The same with errors ignored: one that fails is skipped without a word.
void executeIgnoringErrors(const QString &sql);

/// A text as a value of a statement. An apostrophe within it breaks the statement.
QString quoted(const QString &text);

/// Whether a text would break the statement into which it goes: no apostrophe is escaped anywhere.
bool Tem_Apostrofo(const QString &text);
