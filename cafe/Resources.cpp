#include "cafe/Resources.h"

#include <QDir>
#include <QFile>

// Resources of a static library are linked in only when they are asked for by name, outside any namespace.
static void linkResources()
{
    Q_INIT_RESOURCE(cafe);
}

QByteArray resourceBytes(const QString &name)
{
    linkResources();
    QFile file(":/cafe/" + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s is not built in", qPrintable(name));
    return file.readAll();
}

QStringList resourceNames(const QString &folder)
{
    linkResources();
    return QDir(":/cafe/" + folder).entryList(QDir::Files, QDir::Name);
}

QStringList resourceLines(const QString &name)
{
    return QString::fromUtf8(resourceBytes(name)).split('\n', Qt::SkipEmptyParts);
}

ResourceTable resourceTable(const QString &name)
{
    QStringList lines = resourceLines(name);
    ResourceTable table{lines.takeFirst().split('\t'), {}};
    for (const QString &line : std::as_const(lines))
        table.rows.append(line.split('\t'));
    return table;
}

QByteArray withWindowsLineEnds(QByteArray text)
{
    return text.replace('\n', "\r\n");
}
