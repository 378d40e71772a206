#pragma once

#include "platform/jet/DBEngine.h"
#include "tests/support/EngineSql.h"
#include "tests/support/Errors.h"
#include "tests/support/Files.h"

#include <QTemporaryDir>

/// Password of every data file in these tests.
inline const QString connectText = ";PWD=segredo'1";

/// A real encrypted file in a folder of its own, with a few tables of every kind.
class DataFile
{
public:
    DataFile()
    {
        db = DBEngine::CreateDatabase(path(), connectText);
        db->applySchema(steps());
    }

    QString path(const QString &name = "Dados.mdb") const { return m_folder.filePath(name); }
    DatabaseHandle open() const { return openAt(path()); }

    static DatabaseHandle openAt(const QString &path)
    {
        return DBEngine::Workspaces(0).OpenDatabase(path, false, false, connectText);
    }

    void run(const QString &engineSql) const { runEngineSql(path(), connectText.mid(5), engineSql); }

    /// The bytes of the file, while no database has it open.
    QByteArray bytes() const { return readFile(path()); }
    void write(const QString &name, const QByteArray &content) const { writeFile(path(name), content); }

    static QList<SchemaStep> steps()
    {
        using enum FieldType;
        return {{1,
                 {{"Produtos",
                   {{"Codigo", Number},
                    {"Descrição", Text},
                    {"Quantidade", Text},
                    {"Valor", Text},
                    {"Servico", Boolean},
                    {"Categoria", TextAnyCase}},
                   KeyKind::Refuse,
                   "Codigo",
                   {"Descrição"}},
                  {"Vendas",
                   {{"Codigo", Number}, {"Nome", Text}, {"Paga", Boolean}},
                   KeyKind::Renumber,
                   "Codigo",
                   {"Nome"}}}}};
    }

    /// Rows of a query, their values joined by "|" and the rows by a blank; Null is "~".
    static QString answer(const DatabaseHandle &database, const QString &sql)
    {
        QStringList rows;
        for (const RecordsetHandle rs = database->OpenRecordset(sql); !rs->Eof(); rs->MoveNext()) {
            QStringList values;
            for (int i = 0; i < rs->FieldCount(); ++i)
                values.append(rs->Fields(i).isNull() ? "~" : rs->Fields(i).text());
            rows.append(values.join('|'));
        }
        return rows.join(' ');
    }
    QString answer(const QString &sql) const { return answer(db, sql); }

    DatabaseHandle db;

private:
    QTemporaryDir m_folder;
};
