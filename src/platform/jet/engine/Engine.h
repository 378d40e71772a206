#pragma once

#include "platform/jet/Catalogue.h"
#include "platform/jet/RowStore.h"
#include "platform/jet/Statement.h"

#include <QString>
#include <QStringList>

#include <memory>

/// Which file a session works on.
struct FileAccess
{
    QString path;
    QString password;
};

/// One open data file behind a storage engine. Statements come bound to the file's catalogue. Every operation raises a
/// RunTimeError when the file, the statement or a value is at fault; a fault of the engine itself, or of its use here,
/// is none.
///
/// Where others hold the file, opening it and every operation wait by `Patience::waitForOthers`, which knows how long
/// and gives the sign of life, and raise FileLocked when it answers no. An operation that takes long by itself calls
/// `LongWork::goOn` on the way.
class EngineSession
{
public:
    EngineSession() = default;
    virtual ~EngineSession() = default;
    EngineSession(const EngineSession &) = delete;
    EngineSession &operator=(const EngineSession &) = delete;

    /// False once the file is out of reach, damaged or exchanged for another: the session is of no more use.
    virtual bool isAlive() const = 0;
    /// To be asked before an operation. False when another file lies at the path now; raises DiskError when none does.
    /// In both cases the session is of no more use.
    virtual bool reachesItsFile() = 0;

    virtual Catalogue readCatalogue() = 0;
    /// Reads the whole answer, so that no lock stays behind.
    virtual RowStore query(const SelectStatement &select) = 0;
    virtual void execute(const Statement &statement) = 0;

    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;

    virtual int schemaVersion() = 0;
    virtual void setSchemaVersion(int version) = 0;
    virtual void createTable(const TableDef &table) = 0;
    /// Leaves fields that are numbers already as they are, and all else of the table as its makers designed it.
    virtual void turnIntoNumbers(const FieldsToNumbers &change) = 0;

    /// Faults in the file; empty when it is sound.
    virtual QStringList faults() = 0;
    /// Triggers and views that this program did not put there, one line each: they would run at its statements.
    virtual QStringList foreignParts() = 0;
    virtual void backupTo(const QString &path) = 0;
};

/// A storage engine: the one place that decides how a data file is kept.
class Engine
{
public:
    Engine() = default;
    virtual ~Engine() = default;
    Engine(const Engine &) = delete;
    Engine &operator=(const Engine &) = delete;

    /// Never makes a file. Raises CannotOpenFile or UnrecognisedFormat.
    virtual std::unique_ptr<EngineSession> open(const FileAccess &access) = 0;
    /// Makes a new, empty file; raises when the path exists.
    virtual void create(const QString &path, const QString &password) = 0;
};

/// The engine behind all data files of this program.
Engine &storageEngine();
