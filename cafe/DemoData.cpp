#include "cafe/DemoData.h"

#include "cafe/Resources.h"
#include "cafe/RowWriter.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

namespace {

constexpr int closedPeriods = 10;

/// Columns of the built-in tables that hold an amount as a text, with a point as its separator. In number columns that
/// point is the one of the statement.
bool isAmount(const QString &column)
{
    return column == "Valor" || column == "Desconto";
}

QStringList regional(const QStringList &columns, QStringList row)
{
    for (qsizetype i = 0; i < row.size(); ++i) {
        if (isAmount(columns[i]))
            row[i] = Cstr(Val(row[i]));
    }
    return row;
}

void fillFromResource(Database &db, const QString &table)
{
    const ResourceTable source = resourceTable(table + ".tsv");
    RowWriter writer(db, table, source.columns);
    for (const QStringList &row : source.rows)
        writer.write(regional(source.columns, row));
}

void fillCashPeriods(Database &db)
{
    RowWriter periods(db, "Registro_Caixa", {"ID_Caixa", "Caixa_Aberto"});
    for (int period = 1; period <= closedPeriods; ++period)
        periods.write({QString::number(period), "False"});
    periods.write({QString::number(closedPeriods + 1), "True"});
}

} // namespace

void fillBasics(Database &db)
{
    fillFromResource(db, "Empresa");
    RowWriter(db, "Grupo_Clientes", {"Grupo", "Desconto"}).write({"NORMAL", "0"});
    RowWriter(db, "Categoria", {"Codigo", "Nome"}).write({"1", "DIVERSOS"});

    // The first product is the time at the computers. It is sold by the administration program and never at a counter.
    const QDateTime now = Machine::current().now();
    RowWriter(db, "Produtos",
              {"Codigo", "Data", "Hora", "Descrição", "Quantidade", "Estoque_Min", "Valor_Unitario", "Fornecedor",
               "Cod", "Cod_Barra", "Servico", "Cardapio", "Categoria"})
        .write({"1", FormatDate(now), FormatTime(now), "TEMPO DE ACESSO", "0", "0", Format(3, u"####0.00"), "------",
                "---", "-------------", "True", "False", "DIVERSOS"});
}

void requireDemoSizes(const CafeOptions &options)
{
    if (options.customers < 0 || options.products < 0 || options.sales < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "a count cannot be negative");
    if (options.customers > demoCustomerLimit())
        throw RunTimeError(ErrorNumber::InvalidProcedureCall,
                           QString("at most %1 customers can be made").arg(demoCustomerLimit()));
    if (options.sales > 0 && options.products == 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "sales need products");
}

void fillDemo(Database &db, const CafeOptions &options)
{
    fillFromResource(db, "Grupo_Clientes");
    fillFromResource(db, "Descontos");
    fillCashPeriods(db);
    fillDemoProducts(db, options.products);
    fillDemoCustomers(db, options.customers);
    fillDemoSales(db, options.sales, closedPeriods);
}

QString demoDefaultMotive()
{
    const ResourceTable rules = resourceTable("Descontos.tsv");
    return rules.rows.constFirst().at(rules.columns.indexOf("Motivo_Desconto"));
}
