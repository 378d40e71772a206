#pragma once

#include <QString>

/// What another program does to a data file in the engine's own words, through a connection of its own.
void runEngineSql(const QString &path, const QString &password, const QString &sql);

/// Gives a field another name, so that a terminal that opens the file afterwards misses it.
void renameField(const QString &path, const QString &password, const QString &table, const QString &field);
