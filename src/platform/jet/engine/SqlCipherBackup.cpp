#include "platform/jet/engine/SqlCipherBackup.h"

#include "platform/base/Err.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <fcntl.h>
#include <unistd.h>

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

bool flush(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

} // namespace

void backupSqlCipherFile(SqlCipherConnection &source, const QString &path)
{
    const QFileInfo target(path);
    if (target.isDir() ||
        (target.exists() && target.canonicalFilePath() == QFileInfo(source.access().path).canonicalFilePath()))
        throw RunTimeError(ErrorNumber::CannotOpenFile, QString("A backup cannot take the place of \"%1\".").arg(path));

    const QString unfinished = QString("%1.%2.new").arg(path).arg(::getpid());
    QFile::remove(unfinished);
    const auto cleanUp = qScopeGuard([&] { QFile::remove(unfinished); });
    {
        SqlCipherConnection copy({unfinished, source.access().password}, SqlCipherConnection::Mode::Create);
        // The source is held while the pages are copied; what is unfinished needs no journal and is flushed once.
        copy.run("PRAGMA journal_mode = OFF");
        copy.run("PRAGMA synchronous = OFF");
        copyPages(source, copy);
    }
    if (!flush(unfinished) ||
        std::rename(QFile::encodeName(unfinished).constData(), QFile::encodeName(path).constData()) != 0)
        throw RunTimeError(ErrorNumber::DiskError, QString("\"%1\" cannot be written.").arg(path));
}
