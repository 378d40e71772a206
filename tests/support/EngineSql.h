#pragma once

#include <QString>

/// What another program does to a data file in the engine's own words, through a connection of its own.
void runEngineSql(const QString &path, const QString &password, const QString &sql);
