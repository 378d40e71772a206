#include "data/CashPeriod.h"

#include "data/Queries.h"
#include "platform/text/Numbers.h"

void Obter_Ultimo_Caixa()
{
    IdCaixa = 0;
    readFirstRow("Select MAX(ID_Caixa) From Registro_Caixa",
                 [](const Recordset &rs) { IdCaixa = rs.Fields(0).number(); });
}

bool Caixa_Aberto()
{
    bool open = false;
    Obter_Ultimo_Caixa();
    readFirstRow("Select Caixa_Aberto From Registro_Caixa Where Id_Caixa=" + Cstr(IdCaixa),
                 [&](const Recordset &rs) { open = rs.Fields("Caixa_Aberto").boolean(); });
    return open;
}
