#include "platform/jet/engine/SqlCipherConnection.h"

#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/base/Patience.h"
#include "platform/jet/engine/SqlCipherFunctions.h"

#include <QFile>

#include <sys/stat.h>

#include <new>
#include <stdexcept>

namespace {

/// Statements with lists of differing lengths must not fill the memory.
constexpr std::size_t mostPrepared = 64;
/// Some milliseconds' worth of a long statement.
constexpr int instructionsPerSign = 100'000;

int workGoesOn(void *)
{
    LongWork::goOn();
    return 0;
}

int waitForOthers(void *, int attempt)
{
    return Patience::waitForOthers(attempt) ? 1 : 0;
}

/// A regular file at the path. The live file is looked at by its name alone: closing any descriptor of it drops the
/// locks that this process holds.
struct stat statOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISREG(status.st_mode))
        throw RunTimeError(ErrorNumber::CannotOpenFile, QString("\"%1\" cannot be opened.").arg(path));
    return status;
}

/// A file that was opened while it could only be read stays so: it must be opened anew once it can be written again.
bool meansLost(int code)
{
    const int primary = code & 0xFF;
    return primary == SQLITE_IOERR || primary == SQLITE_CANTOPEN || primary == SQLITE_CORRUPT ||
           primary == SQLITE_NOTADB || primary == SQLITE_READONLY;
}

/// Memory that is gone, and calls that this program makes wrongly, are no fault of a file or a statement: no routine
/// may go on over them.
void refuseOwnFault(int code)
{
    switch (code & 0xFF) {
    case SQLITE_NOMEM:
        throw std::bad_alloc();
    case SQLITE_INTERNAL:
    case SQLITE_MISUSE:
    case SQLITE_RANGE:
        throw std::logic_error(sqlite3_errstr(code));
    default:
        break;
    }
}

/// What isn't named here is the statement's own fault.
int errorNumber(int code)
{
    if (code == SQLITE_READONLY_DBMOVED)
        return ErrorNumber::DiskError;
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return ErrorNumber::FileLocked;
    case SQLITE_READONLY:
        return ErrorNumber::ReadOnlyDatabase;
    case SQLITE_IOERR:
    case SQLITE_FULL:
        return ErrorNumber::DiskError;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
        return ErrorNumber::CannotOpenFile;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return ErrorNumber::UnrecognisedFormat;
    case SQLITE_CONSTRAINT:
        return ErrorNumber::DuplicateKey;
    case SQLITE_MISMATCH:
        return ErrorNumber::TypeMismatch;
    default:
        return ErrorNumber::BadSql;
    }
}

} // namespace

SqlCipherRun::~SqlCipherRun()
{
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

QString textColumn(sqlite3_stmt *statement, int column)
{
    const void *text = sqlite3_column_text(statement, column);
    return QString::fromUtf8(static_cast<const char *>(text), sqlite3_column_bytes(statement, column));
}

SqlCipherConnection::SqlCipherConnection(const FileAccess &access, Mode mode) : m_access(access)
{
    if (mode == Mode::Open) {
        const struct stat status = statOf(access.path);
        if (status.st_size == 0)
            throw RunTimeError(ErrorNumber::UnrecognisedFormat, QString("\"%1\" is empty.").arg(access.path));
        m_device = status.st_dev;
        m_inode = status.st_ino;
    }
    openHandle(mode);
    setUp(mode);
}

void SqlCipherConnection::openHandle(Mode mode)
{
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (mode == Mode::Create ? SQLITE_OPEN_CREATE : 0);
    sqlite3 *handle = nullptr;
    const int code = sqlite3_open_v2(QFile::encodeName(m_access.path).constData(), &handle, flags, nullptr);
    m_handle.reset(handle);
    refuseOwnFault(code);
    if (code != SQLITE_OK)
        throw RunTimeError(ErrorNumber::CannotOpenFile, QString("\"%1\" cannot be opened.").arg(m_access.path));
}

void SqlCipherConnection::setUp(Mode mode)
{
    sqlite3_extended_result_codes(handle(), 1);
    sqlite3_busy_handler(handle(), waitForOthers, nullptr);
    sqlite3_progress_handler(handle(), instructionsPerSign, workGoesOn, nullptr);
    // Files of version 4 of the library have another layout by default; the version here does not know the pragma.
    run("PRAGMA cipher_default_compatibility = 3");
    const QByteArray key = m_access.password.toUtf8();
    if (!key.isEmpty() && sqlite3_key(handle(), key.constData(), static_cast<int>(key.size())) != SQLITE_OK)
        raise(SQLITE_NOTADB);
    registerSqlCipherFunctions(handle());

    // A first read tells a data file with this password from all else.
    if (mode == Mode::Open)
        run("SELECT count(*) FROM sqlite_master");
    // A write-ahead log would not work over a network folder.
    run("PRAGMA journal_mode = DELETE");
    run("PRAGMA synchronous = EXTRA");
    run("PRAGMA temp_store = MEMORY");
    run("PRAGMA cache_size = -16384");
}

bool SqlCipherConnection::reachesItsFile()
{
    struct stat status = {};
    if (m_lost || ::stat(QFile::encodeName(m_access.path).constData(), &status) != 0 || status.st_size == 0) {
        m_lost = true;
        throw RunTimeError(ErrorNumber::DiskError, QString("\"%1\" is no longer there.").arg(m_access.path));
    }
    m_lost = status.st_dev != m_device || status.st_ino != m_inode;
    return !m_lost;
}

void SqlCipherConnection::run(const std::string &sql)
{
    const int code = sqlite3_exec(handle(), sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        raise(code);
}

SqlCipherConnection::Prepared SqlCipherConnection::compile(const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    const int code = sqlite3_prepare_v2(handle(), sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr);
    if (code != SQLITE_OK)
        raise(code);
    return Prepared(statement);
}

sqlite3_stmt *SqlCipherConnection::prepare(const std::string &sql)
{
    const auto known = m_prepared.find(sql);
    if (known != m_prepared.end())
        return known->second.get();
    Prepared fresh = compile(sql);
    if (m_prepared.size() >= mostPrepared)
        m_prepared.clear();
    return m_prepared.emplace(sql, std::move(fresh)).first->second.get();
}

bool SqlCipherConnection::step(sqlite3_stmt *statement)
{
    const int code = sqlite3_step(statement);
    if (code == SQLITE_ROW)
        return true;
    if (code != SQLITE_DONE)
        raise(code);
    return false;
}

void SqlCipherConnection::raise(int code)
{
    refuseOwnFault(code);
    if (meansLost(code))
        m_lost = true;
    throw RunTimeError(errorNumber(code), QString::fromUtf8(sqlite3_errmsg(handle())));
}
