#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// The texts that are built into the tool, by their names under cafe/demo.

QByteArray resourceBytes(const QString &name);
QStringList resourceNames(const QString &folder);
QStringList resourceLines(const QString &name);

/// A table whose first line names its columns; columns are separated by tabs.
struct ResourceTable
{
    QStringList columns;
    QList<QStringList> rows;
};
ResourceTable resourceTable(const QString &name);

/// The same text with CR LF at the end of each line.
QByteArray withWindowsLineEnds(QByteArray text);
