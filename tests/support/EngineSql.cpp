#include "tests/support/EngineSql.h"

#include "platform/jet/engine/SqlCipherConnection.h"

void runEngineSql(const QString &path, const QString &password, const QString &sql)
{
    SqlCipherConnection({path, password}).run(sql.toStdString());
}

void renameField(const QString &path, const QString &password, const QString &table, const QString &field)
{
    static int version = 9000;
    runEngineSql(path, password,
                 QString("PRAGMA writable_schema = ON; UPDATE sqlite_master SET sql = replace(sql, '\"%1\"', '\"%1 old\"')"
                         " WHERE tbl_name = '%2'; PRAGMA schema_version = %3")
                     .arg(field, table)
                     .arg(++version));
}
