#include "platform/files/Paths.h"

#include "platform/base/Err.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QStringList>

namespace {
QString withSlashes(QString path)
{
    path.replace(u'\\', u'/');
    while (path.contains("//"))
        path.replace("//", "/");
    return path;
}

/// The folder's entry of that name in any case; the name as given when there is none.
QString entryIgnoringCase(const QString &folder, const QString &name)
{
    QString found;
    QDirIterator entries(folder.isEmpty() ? QString(".") : folder,
                         QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        // A folder lists its entries in no order; the first by name makes the same choice every time.
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (found.isEmpty() || entry < found))
            found = entry;
    }
    return found.isEmpty() ? name : found;
}

QFileInfo existing(const QString &path)
{
    QFileInfo info(resolveIgnoringCase(path));
    if (!info.exists())
        throw RunTimeError(ErrorNumber::FileNotFound, "File not found: " + path);
    return info;
}

/// Spelling of a file that is there; a folder is no file.
QString existingFile(const QString &path)
{
    const QFileInfo info = existing(path);
    if (info.isDir())
        throw RunTimeError(ErrorNumber::FileNotFound, "File not found: " + path);
    return info.filePath();
}
} // namespace

QString resolveIgnoringCase(const QString &path)
{
    const QString plain = withSlashes(path);
    if (QFileInfo::exists(plain))
        return plain;

    QString resolved;
    const QStringList components = plain.split(u'/');
    for (qsizetype i = 0; i < components.size(); ++i) {
        if (i > 0)
            resolved += u'/';
        const QString &component = components.at(i);
        const bool asWritten = component.isEmpty() || QFileInfo::exists(resolved + component);
        resolved += asWritten ? component : entryIgnoringCase(resolved, component);
    }
    return resolved;
}

int GetAttr(const QString &path)
{
    constexpr int ReadOnly = 1;
    constexpr int Directory = 16;
    constexpr int Archive = 32;
    const QFileInfo info = existing(path);
    if (info.isDir())
        return Directory;
    return info.isWritable() ? Archive : ReadOnly;
}

QString Dir(const QString &path, int)
{
    const QFileInfo info(resolveIgnoringCase(path));
    if (!info.dir().exists())
        throw RunTimeError(ErrorNumber::BadFileName, "Bad file name: " + path);
    return info.exists() && !info.isDir() ? info.fileName() : QString();
}

void Kill(const QString &path)
{
    QFile file(existingFile(path));
    if (!file.remove())
        throw RunTimeError(ErrorNumber::PathAccess, file.errorString() + ": " + path);
}

void renameFile(const QString &from, const QString &to)
{
    const QString source = existingFile(from);
    QString target = resolveIgnoringCase(to);
    // The file itself in other letters is no obstacle: the new spelling is what is wanted.
    if (QFileInfo::exists(target) && QFileInfo(target) == QFileInfo(source))
        target = QFileInfo(target).path() + u'/' + QFileInfo(withSlashes(to)).fileName();
    QFile file(source);
    if (!file.rename(target))
        throw RunTimeError(ErrorNumber::PathAccess, file.errorString() + ": " + to);
}

QString CurDir()
{
    return QDir::currentPath();
}
