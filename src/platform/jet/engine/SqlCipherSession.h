#pragma once

#include "platform/jet/engine/Engine.h"
#include "platform/jet/engine/SqlCipherConnection.h"
#include "platform/jet/engine/SqlCipherRenderer.h"

/// Statements on one encrypted file.
class SqlCipherSession final : public EngineSession
{
public:
    explicit SqlCipherSession(const FileAccess &access) : m_connection(access) {}

    bool isAlive() const override { return !m_connection.isLost(); }
    bool reachesItsFile() override { return m_connection.reachesItsFile(); }
    Catalogue readCatalogue() override;
    RowStore query(const SelectStatement &select) override;
    void execute(const Statement &statement) override;
    void begin() override;
    void commit() override;
    void rollback() override;
    int schemaVersion() override;
    void setSchemaVersion(int version) override;
    void createTable(const TableDef &table) override;
    void turnIntoNumbers(const FieldsToNumbers &change) override;
    QStringList faults() override;
    QStringList foreignParts() override;
    void backupTo(const QString &path) override;

private:
    void fillLongLists(const RenderedStatement &rendered);
    sqlite3_stmt *prepared(const RenderedStatement &rendered);

    SqlCipherConnection m_connection;
};
