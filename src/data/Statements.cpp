#include "data/Statements.h"

#include "data/Acesso_BD.h"

void executeStatement(const QString &sql)
{
    mainDatabase().Execute(sql);
}

QString quoted(const QString &text)
{
    return "'" + text + "'";
}

bool Tem_Apostrofo(const QString &text)
{
    return text.contains('\'');
}
