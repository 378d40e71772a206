#include "data/Statements.h"

#include "data/Acesso_BD.h"
#include "platform/base/Err.h"

void executeStatement(const QString &sql)
{
    mainDatabase().Execute(sql);
}

void executeIgnoringErrors(const QString &sql)
{
    OnErrorResumeNext([&] { executeStatement(sql); });
}

QString quoted(const QString &text)
{
    return "'" + text + "'";
}

bool Tem_Apostrofo(const QString &text)
{
    return text.contains('\'');
}
