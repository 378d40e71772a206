#include "tests/support/EngineSql.h"

#include "platform/jet/engine/SqlCipherConnection.h"

void runEngineSql(const QString &path, const QString &password, const QString &sql)
{
    SqlCipherConnection({path, password}).run(sql.toStdString());
}
