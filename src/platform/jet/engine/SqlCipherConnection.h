#pragma once

#include "platform/jet/engine/Engine.h"

#include <sqlite3.h>
#include <sys/types.h>

#include <memory>
#include <string>
#include <unordered_map>

/// A kept statement while it runs; afterwards it waits in its connection for its next run, holding no lock.
class SqlCipherRun
{
public:
    explicit SqlCipherRun(sqlite3_stmt *statement) : m_statement(statement) {}
    ~SqlCipherRun();
    SqlCipherRun(const SqlCipherRun &) = delete;
    SqlCipherRun &operator=(const SqlCipherRun &) = delete;

    operator sqlite3_stmt *() const { return m_statement; }

private:
    sqlite3_stmt *m_statement;
};

/// A text of the current row.
QString textColumn(sqlite3_stmt *statement, int column);

/// A handle on one encrypted file: opening, waiting for other terminals, errors, and the watch over the file's place.
class SqlCipherConnection
{
public:
    enum class Mode
    {
        Open,
        Create
    };

    struct Finalize
    {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

    explicit SqlCipherConnection(const FileAccess &access, Mode mode = Mode::Open);

    sqlite3 *handle() const { return m_handle.get(); }
    const FileAccess &access() const { return m_access; }
    bool isLost() const { return m_lost; }
    void markLost() { m_lost = true; }
    /// See EngineSession::reachesItsFile.
    bool reachesItsFile();

    /// Runs a statement of the engine's own.
    void run(const std::string &sql);
    /// A statement ready to be stepped, for one use.
    Prepared compile(const std::string &sql);
    /// A statement ready to be bound and stepped; it is kept for its next use.
    sqlite3_stmt *prepare(const std::string &sql);
    /// True at a row, false at the end.
    bool step(sqlite3_stmt *statement);
    [[noreturn]] void raise(int code);

private:
    struct CloseHandle
    {
        void operator()(sqlite3 *handle) const { sqlite3_close_v2(handle); }
    };
    using Handle = std::unique_ptr<sqlite3, CloseHandle>;

    void openHandle(Mode mode);
    void setUp(Mode mode);

    FileAccess m_access;
    dev_t m_device = 0;
    ino_t m_inode = 0;
    bool m_lost = false;
    Handle m_handle;
    /// By their text. Declared behind the handle, so that they go first.
    std::unordered_map<std::string, Prepared> m_prepared;
};
