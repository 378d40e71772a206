#include "platform/jet/Database.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/jet/OpenFile.h"

namespace {

constexpr int objectClosed = 3420;

/// A calculated column has no name of its own; it bears the one that the windows' SQL gives it.
QStringList namesOf(const std::vector<Expression> &columns)
{
    constexpr int firstCalculated = 1000;
    QStringList names;
    for (const Expression &column : columns)
        names.append(column.kind == ExpressionKind::Field
                         ? column.text
                         : QString("Expr%1").arg(firstCalculated + static_cast<int>(names.size())));
    return names;
}

} // namespace

Database::Database(std::unique_ptr<OpenFile> file) : m_file(std::move(file)) {}

Database::~Database() = default;

OpenFile &Database::file() const
{
    if (!m_file)
        throw RunTimeError(objectClosed, "The database is closed.");
    return *m_file;
}

RecordsetHandle Database::OpenRecordset(const QString &sql, int, int)
{
    const auto ask = [](EngineSession &session, const Statement &statement) {
        const auto *select = std::get_if<SelectStatement>(&statement);
        if (!select)
            throw RunTimeError(ErrorNumber::BadSql, "Only a query has an answer.");
        return std::make_shared<Recordset>(namesOf(select->columns), session.query(*select));
    };
    return file().use([&](EngineSession &session) {
        const Statement statement = file().read(sql);
        try {
            return ask(session, statement);
        } catch (const RunTimeError &error) {
            if (error.Number() != ErrorNumber::BadSql)
                throw;
        }
        // Another program may have taken a field away since the file was opened, and "*" means those that are left.
        file().tables();
        return ask(session, file().read(sql));
    });
}

void Database::Execute(const QString &sql)
{
    file().use([&](EngineSession &session) {
        const Statement statement = file().read(sql);
        if (std::holds_alternative<SelectStatement>(statement))
            throw RunTimeError(ErrorNumber::BadSql, "A query changes nothing.");
        session.execute(statement);
    });
}

QList<TableDef> Database::TableDefs() const
{
    return file().tables();
}

void Database::Close()
{
    m_file.reset();
}

int Database::schemaVersion() const
{
    return file().use([](EngineSession &session) { return session.schemaVersion(); });
}

void Database::applySchema(const QList<SchemaStep> &steps)
{
    for (const SchemaStep &step : steps) {
        if (schemaVersion() >= step.Number)
            continue;
        inTransaction([&] {
            file().use([&](EngineSession &session) {
                // Another terminal may have run the step while this one waited for it.
                if (session.schemaVersion() >= step.Number)
                    return;
                for (const TableDef &table : step.NewTables)
                    session.createTable(table);
                for (const FieldsToNumbers &change : step.NewNumbers)
                    session.turnIntoNumbers(change);
                session.setSchemaVersion(step.Number);
            });
        });
    }
    file().tables();
}

void Database::inTransaction(const std::function<void()> &body)
{
    file().inTransaction(body);
}

QStringList Database::checkIntegrity() const
{
    return file().use([](EngineSession &session) { return session.faults(); });
}

QStringList Database::foreignParts() const
{
    return file().use([](EngineSession &session) { return session.foreignParts(); });
}

void Database::backupTo(const QString &path) const
{
    file().use([&](EngineSession &session) { session.backupTo(resolveIgnoringCase(path)); });
}
