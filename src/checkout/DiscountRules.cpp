#include "checkout/DiscountRules.h"

#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"

namespace {
QString fixedDiscountQuery(double code)
{
    return "Select Relativo,Absoluto From Descontos Where Codigo=" + Cstr(code) + " AND Fixo=True";
}
} // namespace

bool Tem_Desconto_Fixo(double code)
{
    return hasRow(fixedDiscountQuery(code));
}

double Valor_Desconto_Fixo(double code, double total)
{
    double discount = 0;
    readFirstRow(fixedDiscountQuery(code), [&](const Recordset &rs) {
        const FieldValue percentage = rs.Fields("Relativo");
        if (!percentage.isNull() && percentage.number() > 0)
            discount = Cdbl(Format(percentage.number() * total / 100, u"#0.00"));
        else
            discount = rs.Fields("Absoluto").number();
    });
    return discount;
}

bool Desconto_Atendido(quint8 code, const QString &value)
{
    bool refused = false;
    readFirstRow("Select * from Descontos Where Codigo=" + Cstr(code), [&](const Recordset &rs) {
        if (!rs.Fields("LiberarAuto").boolean())
            return;
        const double total = Cdbl(value);
        const double threshold = Cdbl(rs.Fields("Valor").text());
        const bool atLeast = Val(rs.Fields("Condicao").text()) == 1;
        refused = atLeast ? total < threshold : total != threshold;
    });
    return refused;
}

bool Desconto_Libera_Auto(quint8 code)
{
    bool automatic = false;
    readFirstRow("Select LiberarAuto from Descontos Where Codigo=" + Cstr(code),
                 [&](const Recordset &rs) { automatic = rs.Fields("LiberarAuto").boolean(); });
    return automatic;
}

double Valor_Proporcional(double share, double base, double value)
{
    // A sale of free goods has nothing to share out.
    if (base == 0)
        return 0;
    double result = 0;
    OnErrorResumeNext([&] { result = Cdbl(Format(((value * 100 / base) * share) / 100, u"##0.00")); });
    return result;
}
