#include "bench/SaleFigures.h"

#include "bench/BareFile.h"
#include "bench/BareList.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "cafe/Cafe.h"
#include "configuration/Globais.h"
#include "customers/CustomerColumns.h"
#include "data/Acesso_BD.h"
#include "platform/window/Forms.h"
#include "sale/ProductRules.h"
#include "sale/frmvenda.h"
#include "tests/support/Controls.h"

#include <QCheckBox>
#include <QCoreApplication>

#include <string>
#include <vector>

namespace {
constexpr int cartLines = 10;

/// The sale window on one café.
class Counter
{
public:
    explicit Counter(const QString &cafe) : m_program(cafe)
    {
        window().Show();
        QCoreApplication::processEvents();
        control<QCheckBox>(window(), "chkrecibo").setChecked(false);
        click(window(), "optavulsa");
        const RecordsetHandle rs = openDataFile(cafe)->OpenRecordset(
            "Select Descrição from Produtos Where Servico=False And Codigo<>1 Order By Codigo");
        for (; m_products.size() < cartLines; rs->MoveNext())
            m_products += rs->Fields(0).text();
    }

    frmvenda &window() { return Forms::use<frmvenda>(); }
    const QStringList &products() const { return m_products; }

    double secondsOfSale()
    {
        for (const QString &product : m_products)
            window().Adicionar_Produto(product, 1);
        replaceText(control(window(), "txtvalor_pago"), "99999");
        return secondsOf([this] { click(window(), "cmdfinalizar"); });
    }

private:
    Program m_program;
    QStringList m_products;
};

/// What the confirmation of a cart asks and writes, without a window around it.
class BareSale
{
public:
    BareSale(BareFile &file, const QStringList &products) : m_file(file)
    {
        for (const QString &product : products)
            m_products.push_back(product.toStdString());
    }

    double secondsOfSale()
    {
        // The cart was filled from these rows.
        for (const std::string &product : m_products)
            m_stock.with(product).run();
        return secondsOf([this] {
            const long long period = m_lastPeriod.number();
            m_isOpen.with(period).run();
            for (const std::string &product : m_products)
                m_category.with(product).run();
            for (const std::string &product : m_products) {
                const long long next = m_lastSale.number() + 1;
                m_category.with(product).run();
                m_line.with(next, product, period, period).run();
                m_lowerStock.with(product).run();
                m_stock.with(product).run();
            }
        });
    }

private:
    BareFile &m_file;
    std::vector<std::string> m_products;
    BareStatement m_lastPeriod{m_file, "SELECT Max(ID_Caixa) FROM Registro_Caixa"};
    BareStatement m_isOpen{m_file, "SELECT Caixa_Aberto FROM Registro_Caixa WHERE ID_Caixa=?"};
    BareStatement m_lastSale{m_file, "SELECT Max(Codigo) FROM Venda_Produtos"};
    BareStatement m_category{m_file, "SELECT Categoria FROM Produtos WHERE \"Descrição\"=?"};
    BareStatement m_line{
        m_file, "INSERT INTO Venda_Produtos (Codigo,Data,Hora,\"Descrição\",Quantidade,Nome,Nick,Avulsa,Debito,"
                "Valor_Total,Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,Categoria) VALUES "
                "(?,'15/03/2024','14:30:05',?,'1','------','------',-1,0,'2,50','0,00','-----------',"
                "'15/03/2024','14:30:05',?,?,'BEBIDAS')"};
    BareStatement m_lowerStock{m_file, "UPDATE Produtos SET Quantidade=CAST(Cdbl(Quantidade)-1 AS INTEGER) WHERE "
                                       "\"Descrição\"=? AND Servico=0"};
    BareStatement m_stock{m_file, "SELECT * FROM Produtos WHERE \"Descrição\"=? AND Servico=0"};
};

void fillStocks(const QString &cafe)
{
    openDataFile(cafe)->Execute("Update Produtos Set Quantidade='99999' Where Servico=False");
}

const QString ruleHead =
    "Select Codigo,Fixo,Relativo,Absoluto,Grupo, Categoria, AtoCadastro, Valor, TipoVenda From Descontos Where "
    "LiberarAuto = "
    "True and (((Cdbl(Valor)=Cdbl('3,00') AND Condicao='2') OR (Cdbl(Valor)<=Cdbl('3,00') AND Condicao='1'))) AND ";

Quartiles ratioOfDiscountQueries(const QString &cafe)
{
    const QStringList conditions = productRuleConditions("VIP", "BEBIDAS");
    BareFile file(dataFileOf(cafe));
    std::vector<BareStatement> statements;
    for (const QString &condition : conditions) {
        QString sql = ruleHead + condition;
        sql.replace("True", "-1").replace("False", "0").replace("Cdbl('3,00')", "?1");
        statements.emplace_back(file, sql.toStdString());
    }
    Abrir_Banco_Principal();
    constexpr int times = 20;
    return ratiosOfPairs(
        [&] {
            return secondsOf([&] {
                for (int time = 0; time < times; ++time)
                    for (const QString &condition : conditions) {
                        RecordsetHandle rs;
                        rs = Abrir_Recordset(rs, BancoPrincipal, ruleHead + condition);
                    }
            });
        },
        [&] {
            return secondsOf([&] {
                for (int time = 0; time < times; ++time)
                    for (BareStatement &statement : statements)
                        statement.with(3LL).run();
            });
        });
}

Quartiles ratioOfList(Counter &counter, BareFile &file)
{
    BareStatement customers(file, "SELECT * FROM Clientes");
    BareList list({0, 1, 16});
    list.show();
    return ratiosOfPairs([&] { return secondsOf([&] { counter.window().Listar_Clientes(); }); },
                         [&] { return secondsOf([&] { list.load(customers, CustomerColumn::Name); }); });
}

/// The same window sells on both cafés in turn.
Quartiles ratioOfStoredRows(Counter &counter, const QString &smallCafe, const QString &largeCafe)
{
    const auto openedAt = [](const QString &cafe) {
        CaminhoBD = dataFileOf(cafe);
        BancoPrincipal.reset();
        Abrir_Banco_Principal();
        return BancoPrincipal;
    };
    const DatabaseHandle small = openedAt(smallCafe);
    const DatabaseHandle large = openedAt(largeCafe);
    const auto saleAt = [&counter](const QString &cafe, const DatabaseHandle &file) {
        CaminhoBD = dataFileOf(cafe);
        BancoPrincipal = file;
        return counter.secondsOfSale();
    };
    return ratiosOfPairs([&] { return saleAt(largeCafe, large); }, [&] { return saleAt(smallCafe, small); });
}
} // namespace

void addSaleFigures(FigureTable &table, const QString &smallCafe, const QString &largeCafe)
{
    fillStocks(smallCafe);
    fillStocks(largeCafe);
    Counter counter(smallCafe);
    BareFile file(dataFileOf(smallCafe));
    table.add("list of 32,767 customers", ratioOfList(counter, file), 1.5);
    BareSale sale(file, counter.products());
    table.add("storing a cart of 10 lines",
              ratiosOfPairs([&] { return counter.secondsOfSale(); }, [&] { return sale.secondsOfSale(); }), 1.25);
    table.add("the four discount queries over 255 rules", ratioOfDiscountQueries(smallCafe), 1.3);
    table.add("storing that cart with 1,000,000 stored rows, to 1,000",
              ratioOfStoredRows(counter, smallCafe, largeCafe), 1.1);
}
