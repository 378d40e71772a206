#include "cafe/DemoData.h"

#include "cafe/Chance.h"
#include "cafe/RowWriter.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"

namespace {

enum SalePurpose : quint64
{
    Buyer,
    Article,
    Quantity,
    WalkIn,
    Debt
};

struct Customer
{
    QString name, nick;
};

struct Product
{
    QString description, category;
    double price;
};

QList<Customer> storedCustomers(Database &db)
{
    QList<Customer> customers;
    for (const RecordsetHandle rs = db.OpenRecordset("Select Nome,Nick From Clientes Order By Codigo"); !rs->Eof();
         rs->MoveNext())
        customers.append({rs->Fields(0).text(), rs->Fields(1).text()});
    return customers;
}

QList<Product> storedProducts(Database &db)
{
    QList<Product> products;
    for (const RecordsetHandle rs = db.OpenRecordset(
             "Select Descrição,Categoria,Valor_Unitario From Produtos Where Codigo <> 1 Order By Codigo");
         !rs->Eof(); rs->MoveNext())
        products.append({rs->Fields(0).text(), rs->Fields(1).text(), rs->Fields(2).number()});
    return products;
}

} // namespace

void fillDemoSales(Database &db, int count, int periods)
{
    if (count == 0)
        return;
    const QList<Customer> customers = storedCustomers(db);
    const QList<Product> products = storedProducts(db);
    const Customer walkIn{"------", "------"};
    const QString noDiscount = Format(0, u"####0.00");
    const QDate today = Machine::current().now().date();
    constexpr int openingHour = 8;
    constexpr qint64 openSeconds = 14 * 3600;

    RowWriter writer(db, "Venda_Produtos",
                     {"Codigo", "Data", "Hora", "Descrição", "Quantidade", "Nome", "Nick", "Avulsa", "Debito",
                      "Valor_Total", "Desconto", "Motivo_Desconto", "Data_Pag", "Hora_Pag", "Id_Caixa", "Id_Caixa_Pago",
                      "Categoria"});
    for (int i = 0; i < count; ++i) {
        const auto row = static_cast<quint64>(i);
        const qint64 position = static_cast<qint64>(i) * periods;
        const qint64 day = position / count;
        const qint64 second = position % count * openSeconds / count;
        const QDateTime moment(today.addDays(day - periods), QTime(openingHour, 0).addSecs(static_cast<int>(second)));
        const QString date = FormatDate(moment);
        const QString time = FormatTime(moment);
        const QString period = QString::number(day + 1);

        const bool toWalkIn = customers.isEmpty() || drawn(row, WalkIn, 3) == 0;
        const Customer &buyer = toWalkIn ? walkIn : customers[drawn(row, Buyer, customers.size())];
        const bool owed = !toWalkIn && drawn(row, Debt, 25) == 0;
        const Product &product = products[drawn(row, Article, products.size())];
        const auto quantity = static_cast<int>(1 + drawn(row, Quantity, 3));
        writer.write({QString::number(i + 1), date, time, product.description, QString::number(quantity), buyer.name,
                      buyer.nick, toWalkIn ? "True" : "False", owed ? "True" : "False",
                      Format(product.price * quantity, u"####0.00"), noDiscount, "-----------", date, time, period,
                      period, product.category});
    }
}
