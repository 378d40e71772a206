#include "platform/files/SafeFile.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {
constexpr mode_t readAndWrite = 0666;

struct stat statusOf(const QString &path)
{
    struct stat status = {};
    if (lstat(QFile::encodeName(path).constData(), &status) != 0)
        status = {};
    return status;
}

/// What was copied from beyond the folder would show it to all who can read here: a key of the attendant's, for one.
QString targetInFolder(const QString &link)
{
    const QFileInfo target(QFileInfo(link).canonicalFilePath());
    return target.path() == QFileInfo(QFileInfo(link).path()).canonicalFilePath() ? target.filePath() : link;
}

int openWithoutWaiting(const QString &path)
{
    // Without O_NONBLOCK a pipe would hold the program until somebody writes into it.
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

/// Rights and group of the file that will stand at the path.
void settleRights(int descriptor, const QString &path, const QString &rightsOf)
{
    const struct stat old = statusOf(path);
    if (S_ISREG(old.st_mode)) {
        giveRights(descriptor, old.st_mode & ACCESSPERMS, old.st_gid);
        return;
    }
    const struct stat folder = statusOf(QFileInfo(QFileInfo(path).path()).canonicalFilePath());
    const struct stat sibling = rightsOf.isEmpty() ? folder : statusOf(resolveIgnoringCase(rightsOf));
    giveRights(descriptor, (S_ISREG(sibling.st_mode) ? sibling : folder).st_mode & readAndWrite, folder.st_gid);
}
} // namespace

bool namesFolder(const QString &path)
{
    return path.lastIndexOf(u'/') > 0;
}

void giveRights(int descriptor, mode_t rights, gid_t group)
{
    struct stat own = {};
    const bool known = fstat(descriptor, &own) == 0;
    if (known && own.st_gid != group && fchown(descriptor, static_cast<uid_t>(-1), group) != 0)
        rights = (rights & ~mode_t(S_IRWXG)) | ((rights & S_IRWXO) << 3);
    // A file system without rights of its own gives them by its mount options.
    fchmod(descriptor, rights);
}

QByteArray readRegularFile(const QString &path)
{
    int descriptor = openWithoutWaiting(path);
    if (descriptor < 0 && errno == ELOOP)
        descriptor = openWithoutWaiting(targetInFolder(path));
    if (descriptor < 0) {
        // Sockets answer ENXIO. A file that a network withholds for a moment is not absent.
        const bool absent = errno == ENOENT || errno == ENOTDIR || errno == ELOOP || errno == ENXIO;
        throw RunTimeError(absent ? ErrorNumber::FileNotFound : ErrorNumber::PathAccess,
                           qt_error_string(errno) + ": " + path);
    }
    QFile file;
    struct stat status = {};
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle) ||
        fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode))
        throw RunTimeError(ErrorNumber::FileNotFound, "Not a file: " + path);
    QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::PathAccess, file.errorString() + ": " + path);
    return content;
}

void writeWholeFile(const QString &path, const QByteArray &content, const QString &rightsOf)
{
    const QString target = resolveIgnoringCase(path);
    const QByteArray name = QFile::encodeName(target);
    QTemporaryFile file(target + ".XXXXXX");
    // A file that must not be written must not be replaced either.
    const bool writable = !S_ISREG(statusOf(target).st_mode) || QFileInfo(target).isWritable();
    if (!namesFolder(target) || !writable || !file.open() || file.write(content) != content.size() || !file.flush())
        throw RunTimeError(ErrorNumber::PathAccess, file.errorString() + ": " + path);
    settleRights(file.handle(), target, rightsOf);
    // The new name must not be there before the bytes are.
    if (fsync(file.handle()) != 0 || std::rename(QFile::encodeName(file.fileName()).constData(), name.constData()) != 0)
        throw RunTimeError(ErrorNumber::PathAccess, qt_error_string(errno) + ": " + path);
    file.setAutoRemove(false);
}
