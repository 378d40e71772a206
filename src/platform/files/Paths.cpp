#include "platform/files/Paths.h"

#include "platform/base/Err.h"
#include "platform/files/SafeFile.h"
#include "platform/text/Utf8.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dirent.h>

#include <memory>

namespace {
QString withSlashes(QString path)
{
    path.replace(u'\\', u'/');
    while (path.contains("//"))
        path.replace("//", "/");
    return path;
}

/// Whether an entry bears that name in any case. To decode every entry would take longer than to read the folder.
bool bearsName(const char *entry, const QString &name)
{
    const QLatin1StringView plain(entry);
    if (isAscii(plain))
        return plain.size() == name.size() && name.compare(plain, Qt::CaseInsensitive) == 0;
    return QFile::decodeName(entry).compare(name, Qt::CaseInsensitive) == 0;
}

/// The folder's entry of that name in any case; the name as given when there is none.
QString entryIgnoringCase(const QString &folder, const QString &name)
{
    // Qt's iterator takes three times as long, and a folder of photos holds thousands of names.
    const std::unique_ptr<DIR, int (*)(DIR *)> entries(opendir(QFile::encodeName(folder + u'.')), closedir);
    QString found;
    while (const dirent *entry = entries ? readdir(entries.get()) : nullptr) {
        if (!bearsName(entry->d_name, name))
            continue;
        // A folder lists its entries in no order; the first by name makes the same choice every time.
        const QString candidate = QFile::decodeName(entry->d_name);
        if (found.isEmpty() || candidate < found)
            found = candidate;
    }
    return found.isEmpty() ? name : found;
}

/// From the end to the front, because mostly the name alone is spelled otherwise and its folder is there.
QString resolved(const QString &path)
{
    if (path.isEmpty() || QFileInfo::exists(path))
        return path;
    const qsizetype nameBegin = path.lastIndexOf(u'/') + 1;
    const QString name = path.sliced(nameBegin);
    const QString folder = nameBegin > 1 ? resolved(path.first(nameBegin - 1)) + u'/' : path.first(nameBegin);
    return name.isEmpty() ? folder : folder + entryIgnoringCase(folder, name);
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
    return resolved(withSlashes(path));
}

int GetAttr(const QString &path)
{
    constexpr int readOnly = 1;
    constexpr int directory = 16;
    constexpr int archive = 32;
    const QFileInfo info = existing(path);
    if (info.isDir())
        return directory;
    return info.isWritable() ? archive : readOnly;
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

void FileCopy(const QString &from, const QString &to, const QString &rightsOf)
{
    writeWholeFile(to, readRegularFile(resolveIgnoringCase(from)), rightsOf);
}

QString CurDir()
{
    return QDir::currentPath();
}
