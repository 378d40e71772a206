#include "platform/jet/engine/SqlCipherBackup.h"

#include "platform/base/Err.h"
#include "platform/files/SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace {

void copyPages(SqlCipherConnection &source, SqlCipherConnection &target)
{
    sqlite3_backup *backup = sqlite3_backup_init(target.handle(), "main", source.handle(), "main");
    if (!backup)
        target.raise(sqlite3_errcode(target.handle()));
    // All pages in one step: between two steps a sale elsewhere would make the copy begin anew, again and again.
    sqlite3_backup_step(backup, -1);
    const int code = sqlite3_backup_finish(backup);
    // A page that cannot be decrypted is reported as a plain error here.
    if (code != SQLITE_OK)
        target.raise(code == SQLITE_ERROR ? SQLITE_CORRUPT : code);
}

/// A name that somebody else has taken meanwhile is not taken from him.
bool renameToUnused(const QByteArray &from, const QByteArray &to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // Some network file systems don't know the flag.
    return errno == EINVAL && ::link(from.constData(), to.constData()) == 0 && ::unlink(from.constData()) == 0;
}

/// The rights of the data file, without those that the user who makes the copy gives to none of his files.
mode_t rightsOfCopy(const struct stat &source)
{
    const mode_t kept = ::umask(S_IRWXG | S_IRWXO);
    ::umask(kept);
    return source.st_mode & ACCESSPERMS & ~kept;
}

[[noreturn]] void refuse(const QString &path, const char *why)
{
    throw RunTimeError(ErrorNumber::DiskError, QString("\"%1\" %2.").arg(path, why));
}

} // namespace

void backupSqlCipherFile(SqlCipherConnection &source, const QString &path)
{
    const QFileInfo target(path);
    if (target.exists() || target.isSymLink())
        refuse(path, "exists already");
    struct stat original = {};
    QTemporaryFile unfinished(path + ".XXXXXX.new");
    if (::stat(QFile::encodeName(source.access().path).constData(), &original) != 0 || !unfinished.open())
        refuse(path, "cannot be written");
    {
        SqlCipherConnection copy({unfinished.fileName(), source.access().password}, SqlCipherConnection::Mode::Create);
        // The source is held while the pages are copied; what is unfinished needs no journal and is flushed once.
        copy.run("PRAGMA journal_mode = OFF");
        copy.run("PRAGMA synchronous = OFF");
        copyPages(source, copy);
    }
    giveRights(unfinished.handle(), rightsOfCopy(original), original.st_gid);
    if (::fsync(unfinished.handle()) != 0)
        refuse(path, "cannot be written");
    if (!renameToUnused(QFile::encodeName(unfinished.fileName()), QFile::encodeName(path)))
        refuse(path, errno == EEXIST ? "exists already" : "cannot be written");
    unfinished.setAutoRemove(false);
}
