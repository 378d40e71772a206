#include "data/Esquema.h"
#include "fuzz/Target.h"
#include "platform/jet/Binder.h"
#include "platform/jet/DBEngine.h"
#include "platform/jet/Parser.h"
#include "platform/text/RegionalSettings.h"

#include <QTemporaryDir>

// Input: a statement, which runs on an encrypted file and is undone.

namespace {
const QString connectText = ";PWD=segredo";

/// Leaves a transaction, so that every input meets the same rows.
struct Undo
{
};

class SmallFile
{
public:
    SmallFile()
    {
        RegionalSettings::use(QLocale("pt_BR"));
        m_database = DBEngine::CreateDatabase(m_folder.filePath("Dados.mdb"), connectText);
        m_database->applySchema(esquemaDoBanco());
        for (const char *row : {"1,'BALA','7,5','1,00',True,'DOCES'", "2,'CAFÉ','','0,10',False,'Bebidas'",
                                "3,'Água','-1','x',False,Null"})
            m_database->Execute(
                QString(
                    "Insert Into Produtos (Codigo,Descrição,Quantidade,Valor_Unitario,Servico,Categoria) Values (") +
                row + ")");
        m_database->Execute("Insert Into Links (Codigo,Nome,Codigo_Acesso) Values (1,'ANA','012345')");
    }

    Database &database() { return *m_database; }

private:
    QTemporaryDir m_folder;
    DatabaseHandle m_database;
};

int rowsOf(Database &database, const QString &table)
{
    return static_cast<int>(database.OpenRecordset("Select Count(*) From [" + table + "]")->Fields(0).number());
}

void readAll(Recordset &rows)
{
    for (; !rows.Eof(); rows.MoveNext()) {
        for (int i = 0; i < rows.FieldCount(); ++i) {
            const FieldValue value = rows.Fields(i);
            const int error = errorOf([&] { static_cast<void>(value.number()); });
            const int expected = value.isNull() ? ErrorNumber::InvalidUseOfNull : ErrorNumber::TypeMismatch;
            require(error == 0 || error == expected, "a value is a number, or tells why not");
            require(value.isNull() || value.kind() == FieldValue::Kind::Text || error == 0, "a number is a number");
            require(errorOf([&] { static_cast<void>(value.text()); }) == 0, "every value has a text");
        }
    }
}

/// What the reader takes, the engine takes: only values may be at fault, and a failed statement changes nothing.
void run(Database &database, const QString &sql, const Statement &statement)
{
    if (const auto *select = std::get_if<SelectStatement>(&statement)) {
        const int error = errorOf([&] { readAll(*database.OpenRecordset(sql)); });
        require(error == 0 || error == ErrorNumber::TypeMismatch, "a query fails by its values alone");
        const QString again = select->table;
        require(rowsOf(database, again) == rowsOf(database, again), "the file stays open");
        return;
    }
    const QString table = std::visit([](const auto &kind) { return kind.table; }, statement);
    const int before = rowsOf(database, table);
    const int error = errorOf([&] { database.Execute(sql); });
    require(error == 0 || error == ErrorNumber::TypeMismatch || error == ErrorNumber::DuplicateKey ||
                error == ErrorNumber::Overflow,
            "a statement fails by its values alone");
    const int change = rowsOf(database, table) - before;
    if (error != 0 || std::holds_alternative<UpdateStatement>(statement))
        require(change == 0, "no row comes or goes by a failed statement or an update");
    else if (std::holds_alternative<InsertStatement>(statement))
        require(change == 1, "an insert adds one row");
    else
        require(change <= 0, "a deletion adds no row");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static SmallFile file;
    static const Catalogue catalogue(tabelasDoBanco());
    const QString sql = QString::fromUtf8(Input(data, size).rest());
    Statement statement;
    if (errorOf([&] {
            statement = parseStatement(sql);
            bindStatement(statement, catalogue);
        }) != 0)
        return 0;
    try {
        file.database().inTransaction([&] {
            run(file.database(), sql, statement);
            throw Undo();
        });
    } catch (const Undo &) {
    }
    require(rowsOf(file.database(), "Produtos") == 3 && rowsOf(file.database(), "Links") == 1, "all is undone");
    return 0;
}
