#include "cafe/DemoData.h"

#include "cafe/Chance.h"
#include "cafe/Resources.h"
#include "cafe/RowWriter.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

namespace {

void fillCategories(Database &db, const ResourceTable &catalogue)
{
    const qsizetype column = catalogue.columns.indexOf("Categoria");
    QStringList names{"DIVERSOS"};
    for (const QStringList &row : catalogue.rows) {
        if (!names.contains(row[column]))
            names.append(row[column]);
    }
    RowWriter writer(db, "Categoria", {"Codigo", "Nome"});
    for (qsizetype i = 1; i < names.size(); ++i)
        writer.write({QString::number(i + 1), names[i]});
}

/// The EAN-13 barcode of a Brazilian article of up to nine digits.
QString ean13(quint64 article)
{
    const QString twelve = QString("789%1").arg(article, 9, 10, QChar('0'));
    int sum = 0;
    for (qsizetype i = 0; i < twelve.size(); ++i)
        sum += twelve[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return twelve + QString::number((10 - sum % 10) % 10);
}

/// Beyond the written catalogue: the same goods in further makes, each with a name and a barcode of its own.
void makeFurther(QStringList &row, const QStringList &columns, int further)
{
    constexpr quint64 firstFreeArticle = 500'000'000;
    const auto field = [&](const QString &name) -> QString & { return row[columns.indexOf(name)]; };
    field("Descrição") += QString(" REF %1").arg(further, 4, 10, QChar('0'));
    field("Cod") = "---";
    if (field("Servico") == "False") {
        field("Cod_Barra") = ean13(firstFreeArticle + static_cast<quint64>(further));
        field("Quantidade") = QString::number(5 + drawn(static_cast<quint64>(further), 0, 60));
    }
}

} // namespace

void fillDemoProducts(Database &db, int count)
{
    const ResourceTable catalogue = resourceTable("Produtos.tsv");
    fillCategories(db, catalogue);

    const qsizetype price = catalogue.columns.indexOf("Valor_Unitario");
    const QDateTime now = Machine::current().now();
    RowWriter writer(db, "Produtos", QStringList{"Codigo", "Data", "Hora"} + catalogue.columns);
    for (int i = 0; i < count; ++i) {
        const qsizetype written = catalogue.rows.size();
        QStringList row = catalogue.rows[i % written];
        if (i >= written)
            makeFurther(row, catalogue.columns, i - static_cast<int>(written) + 1);
        row[price] = Format(Val(row[price]), u"####0.00");
        // The reserved product holds the first number.
        writer.write(QStringList{QString::number(i + 2), FormatDate(now), FormatTime(now)} + row);
    }
}
