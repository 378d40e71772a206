#include "tests/sale/SaleCounter.h"

#include "configuration/Idiomas.h"
#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "sale/frmvenda.h"

#include <QTest>

QList<QStringList> table(const QStringList &rows)
{
    QList<QStringList> fields;
    for (const QString &row : rows)
        fields += row.split('|');
    return fields;
}

SaleCounter::SaleCounter(const QLocale &region) : cafe(region)
{
    cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (7,True)");
    cafe.setIni("Recibo Produtos", "Imprimir", "0");
    add("Produtos", "Codigo=2, Descrição='ÁGUA', Estoque_Min='8', Cod='12', Cod_Barra='7891200000074'");
    add("Produtos", "Codigo=3, Descrição='BALA'");
    add("Produtos", "Codigo=4, Descrição='CAFÉ', Estoque_Min='9'");
    add("Clientes", "Codigo=1, Nome='ANA LIMA', Nick='ZEBRA', Grupo='VIP'");
    add("Descontos", "Codigo=1, Fixo=False, LiberarAuto=False, Motivo_Desconto='NEGOCIADO'");
    cafe.start();
    Salvar_Escala_Impressora();
}

void SaleCounter::add(const QString &table, const QString &changes)
{
    static const QHash<QString, QString> usual{
        {"Produtos", "(Codigo,Quantidade,Estoque_Min,Valor_Unitario,Cod,Servico,Categoria) values "
                     "(0,'10','0','10','---',False,'DIVERSOS')"},
        {"Clientes", "(Codigo,CaminhoFoto,Grupo) values (0,'-----','NORMAL')"},
        {"Descontos", "(Codigo,Motivo_Desconto,Fixo,Relativo,Absoluto,Grupo,Categoria,AtoCadastro,Valor,TipoVenda,"
                      "Condicao,LiberarAuto) values (0,'MOTIVO',True,'0','0','---','-----',False,'0','2','1',True)"}};
    cafe.execute("Insert into " + table + ' ' + usual[table]);
    change(table, changes + " Where Codigo=0");
}

void SaleCounter::open()
{
    Descarregar_Forms();
    auto &form = Forms::use<frmvenda>();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

QString SaleCounter::shown(const QString &name)
{
    return at(name).property(at(name).inherits("QComboBox") ? "currentText" : "text").toString();
}

void SaleCounter::enter(const QString &name, const QString &text)
{
    type(name, text);
    pressKey(at(name), Qt::Key_Return);
}

void SaleCounter::put(const QString &product, const QString &quantity)
{
    enter("cmbprodutos", product);
    enter("txtquantidade", quantity);
}

QStringList SaleCounter::cart()
{
    QStringList lines;
    const auto &grid = at<FlexGrid>("tab_consumo");
    for (int row = 1; row < grid.Rows(); ++row)
        lines += grid.TextMatrix(row, 1) + '|' + grid.TextMatrix(row, 2) + '|' + grid.TextMatrix(row, 3);
    return lines;
}

void SaleCounter::expectNotice(const QString &key)
{
    attendant.expectNotice(textoIdioma("frmvenda", key), "Aviso");
}

void SaleCounter::expectTooMuch(const QString &quantity, const QString &product, const QString &stock)
{
    attendant.expectNotice(QString("A quantidade pedida (%1) é maior que o estoque.\nO produto %2 tem %3 em estoque.")
                               .arg(quantity, product, stock),
                           "Aviso");
}

void SaleCounter::expectQuestion(const QString &amount, int answer)
{
    attendant.expect("Confirma a venda no valor de R$ " + amount + "?", vbYesNo + vbInformation, "Atenção", answer);
}

void SaleCounter::sell(const QString &paid, const QString &amount)
{
    expectQuestion(amount);
    expectNotice("MsgBox13");
    enter("txtvalor_pago", paid);
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
