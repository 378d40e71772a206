#include "tests/sale/SaleCounter.h"

#include "configuration/Idiomas.h"
#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "sale/frmvenda.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace {
QString values(const QList<QVariant> &fields)
{
    QStringList texts;
    for (const QVariant &field : fields)
        texts += field.typeId() == QMetaType::QString ? "'" + field.toString().replace("'", "''") + "'"
                 : field.typeId() == QMetaType::Bool  ? (field.toBool() ? "True" : "False")
                                                      : field.toString();
    return " values (" + texts.join(',') + ")";
}
} // namespace

SaleCounter::SaleCounter(const QLocale &region) : cafe(region)
{
    cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (7,True)");
    cafe.setIni("Recibo Produtos", "Imprimir", "0");
    cafe.start();
    Salvar_Escala_Impressora();
}

void SaleCounter::add(const Product &p)
{
    cafe.execute(
        "Insert into Produtos (Codigo,Descrição,Valor_Unitario,Quantidade,Estoque_Min,Cod,Cod_Barra,Servico,"
        "Categoria)" +
        values({p.code, p.description, p.price, p.stock, p.minimum, p.internalCode, p.barcode, p.service, p.category}));
}

void SaleCounter::add(const Rule &r)
{
    cafe.execute("Insert into Descontos (Codigo,Relativo,Absoluto,Valor,Condicao,Grupo,Categoria,Fixo,LiberarAuto,"
                 "AtoCadastro,TipoVenda,Motivo_Desconto)" +
                 values({r.code, r.relative, r.absolute, r.threshold, QString::number(r.condition), r.group, r.category,
                         r.fixed, r.automatic, r.onRegistration, QString::number(r.saleType), r.motive}));
}

void SaleCounter::addCustomer(const QString &name, const QString &nick, const QString &group, const QString &photo)
{
    const int code = cafe.value("Select Count(*) from Clientes").toInt() + 1;
    cafe.execute("Insert into Clientes (Codigo,Nome,Nick,Grupo,CaminhoFoto)" +
                 values({code, name, nick, group, photo}));
}

void SaleCounter::stockUp()
{
    add({.code = 2, .description = "ÁGUA", .minimum = "8", .internalCode = "12", .barcode = "7891200000074"});
    add({.code = 3, .description = "BALA"});
    add({.code = 4, .description = "CAFÉ", .minimum = "9"});
    addCustomer("ANA LIMA", "ZEBRA");
}

void SaleCounter::open()
{
    auto &form = Forms::use<frmvenda>();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

QString SaleCounter::shown(const QString &name)
{
    return at(name).property(at(name).inherits("QComboBox") ? "currentText" : "text").toString();
}

bool SaleCounter::ticked(const QString &name)
{
    return at<QAbstractButton>(name).isChecked();
}

void SaleCounter::paste(const QString &name, const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
    clear(name);
    pressKey(at(name), Qt::Key_V, Qt::ControlModifier);
}

void SaleCounter::put(const QString &product, const QString &quantity)
{
    type("cmbprodutos", product);
    pressKey(at("cmbprodutos"), Qt::Key_Return);
    type("txtquantidade", quantity);
    pressKey(at("txtquantidade"), Qt::Key_Return);
}

QStringList SaleCounter::cart()
{
    QStringList lines;
    const auto &grid = at<FlexGrid>("tab_consumo");
    for (int row = 1; row < grid.Rows(); ++row)
        lines += QStringList{grid.TextMatrix(row, 1), grid.TextMatrix(row, 2), grid.TextMatrix(row, 3)}.join('|');
    return lines;
}

void SaleCounter::expectNotice(const QString &key, const Attendant::Action &meanwhile)
{
    attendant.expectNotice(textoIdioma("frmvenda", key), "Aviso", meanwhile);
}

void SaleCounter::expectQuestion(const QString &text, int answer, const Attendant::Action &meanwhile)
{
    attendant.expect(text, vbYesNo + vbInformation, "Atenção", answer, meanwhile);
}

void SaleCounter::sell(const QString &amount, const QString &question)
{
    expectQuestion(question);
    expectNotice("MsgBox13");
    type("txtvalor_pago", amount);
    pressKey(at("txtvalor_pago"), Qt::Key_Return);
}

QStringList SaleCounter::sold(const QString &fields)
{
    QStringList lines;
    for (const QStringList &row : cafe.query("Select " + fields + " from Venda_Produtos Order By Codigo"))
        lines += row.join('|');
    return lines;
}

QString SaleCounter::stock(const QString &description)
{
    return cafe.value("Select Quantidade from Produtos Where Descrição='" + description + "'");
}
