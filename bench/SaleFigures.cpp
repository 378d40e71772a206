#include "bench/SaleFigures.h"

#include "bench/BareFile.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "cafe/Cafe.h"
#include "data/Acesso_BD.h"
#include "platform/window/Forms.h"
#include "sale/ProductRules.h"
#include "sale/frmvenda.h"
#include "tests/support/Controls.h"

#include <QCheckBox>
#include <QCoreApplication>

#include <string>

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

/// What the storing of a cart asks and writes, without a window around it.
double secondsOfBareSale(BareFile &file, const QStringList &products)
{
    return secondsOf([&] {
        file.read("SELECT Max(ID_Caixa) FROM Registro_Caixa");
        file.read("SELECT Caixa_Aberto FROM Registro_Caixa WHERE ID_Caixa=1");
        for (const QString &name : products)
            file.read("SELECT Categoria FROM Produtos WHERE \"Descrição\"='" + name.toStdString() + "'");
        for (const QString &name : products) {
            const std::string product = name.toStdString();
            const std::string next =
                std::to_string(1 + std::stoll(file.read("SELECT Max(Codigo) FROM Venda_Produtos")[0]));
            file.read("SELECT Categoria FROM Produtos WHERE \"Descrição\"='" + product + "'");
            file.write(
                "INSERT INTO Venda_Produtos (Codigo,Data,Hora,\"Descrição\",Quantidade,Nome,Nick,Avulsa,Debito,"
                "Valor_Total,Desconto,Motivo_Desconto,Data_Pag,Hora_Pag,Id_Caixa,Id_Caixa_Pago,Categoria) VALUES (" +
                next + ",'15/03/2024','14:30:05','" + product +
                "','1','------','------',-1,0,'2,50','0,00','-----------','15/03/2024','14:30:05',1,1,'BEBIDAS')");
            file.write(
                "UPDATE Produtos SET Quantidade=CAST(Cdbl(Quantidade)-Cdbl('1') AS INTEGER) WHERE \"Descrição\"='" +
                product + "' AND Servico=0");
            file.read("SELECT * FROM Produtos WHERE \"Descrição\"='" + product + "' AND Servico=0");
        }
    });
}

void fillStocks(const QString &cafe)
{
    openDataFile(cafe)->Execute("Update Produtos Set Quantidade='99999' Where Servico=False");
}

const QString ruleHead =
    "Select Codigo,Fixo,Relativo,Absoluto,Grupo, Categoria, AtoCadastro, Valor, TipoVenda From Descontos Where "
    "LiberarAuto = "
    "True and (((Cdbl(Valor)=Cdbl('3,00') AND Condicao='2') OR (Cdbl(Valor)<=Cdbl('3,00') AND Condicao='1'))) AND ";

double ratioOfDiscountQueries(const QString &cafe)
{
    const QStringList conditions = productRuleConditions("VIP", "BEBIDAS");
    BareFile file(dataFileOf(cafe));
    Abrir_Banco_Principal();
    constexpr int times = 50;
    return ratioOfMedians(
        11,
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
                    for (const QString &condition : conditions) {
                        QString sql = ruleHead + condition;
                        sql.replace("True", "-1").replace("False", "0");
                        file.read(sql.toStdString());
                    }
            });
        });
}
} // namespace

void addSaleFigures(FigureTable &table, const QString &smallCafe, const QString &largeCafe)
{
    fillStocks(smallCafe);
    fillStocks(largeCafe);
    double smallSale = 0;
    {
        Counter counter(smallCafe);
        BareFile file(dataFileOf(smallCafe));
        table.add("list of 32,767 customers",
                  ratioOfMedians(
                      9, [&] { return secondsOf([&] { counter.window().Listar_Clientes(); }); },
                      [&] { return secondsOf([&] { file.read("SELECT * FROM Clientes ORDER BY Nome"); }); }),
                  2.0);
        table.add("storing a cart of 10 lines",
                  ratioOfMedians(
                      15, [&] { return counter.secondsOfSale(); },
                      [&] { return secondsOfBareSale(file, counter.products()); }),
                  1.3);
        table.add("the four discount queries over 255 rules", ratioOfDiscountQueries(smallCafe), 2.0);
    }
    // One window at a time: the main handle is the program's only one, so the two cafés take turns in blocks.
    std::vector<double> unused;
    const auto medianSale = [](const QString &cafe) {
        Counter counter(cafe);
        return ratioOfMedians(
            15, [&] { return counter.secondsOfSale(); }, [] { return 1.0; });
    };
    smallSale = medianSale(smallCafe);
    table.add("storing that cart with 1,000,000 stored rows", medianSale(largeCafe) / smallSale, 1.2);
}
