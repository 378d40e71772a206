#pragma once

#include "platform/jet/Recordset.h"
#include "platform/jet/Schema.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

constexpr int dbOpenDynaset = 2;
constexpr int dbOpenForwardOnly = 8;
constexpr int dbSeeChanges = 512;

using RecordsetHandle = std::shared_ptr<Recordset>;

class OpenFile;

/// An open data file. All operations raise a RunTimeError when the file, the statement or a value is at fault.
class Database
{
public:
    explicit Database(std::unique_ptr<OpenFile> file);
    ~Database();
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    /// Reads the whole answer at once and forward only, whatever the type and the options, which aren't looked at.
    RecordsetHandle OpenRecordset(const QString &sql, int = dbOpenForwardOnly, int = 0);
    void Execute(const QString &sql);
    QList<TableDef> TableDefs() const;
    void Close();

    /// Number of the last schema step that ran on this file; 0 for a new one.
    int schemaVersion() const;
    /// Runs the steps that this file has not seen, each in one transaction with its number.
    void applySchema(const QList<SchemaStep> &steps);
    /// Groups the statements of a tool that fills a file; a terminal's statements each stand alone.
    void inTransaction(const std::function<void()> &body);
    /// Faults that the engine finds in the file; empty when it is sound.
    QStringList checkIntegrity() const;
    /// Triggers and views that somebody else put into the file, one line each.
    QStringList foreignParts() const;
    /// Writes a consistent copy with the same password while others work on the file; replaces none.
    void backupTo(const QString &path) const;

private:
    OpenFile &file() const;

    std::unique_ptr<OpenFile> m_file;
};

using DatabaseHandle = std::shared_ptr<Database>;
