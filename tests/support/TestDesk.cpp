#include "tests/support/TestDesk.h"

#include "data/Funcoes.h"

#include <QTest>

TestDesk::TestDesk(const Names &names, Form &(*make)(), const QLocale &region, const CafeOptions &options)
    : cafe(region, options), m_names(names), m_make(make)
{
    cafe.execute("Insert into Registro_Caixa (ID_Caixa,Caixa_Aberto) values (7,True)");
    add("Clientes", "Codigo=1, Nome='ANA LIMA', Nick='ANINHA', Grupo='VIP', Documento='123', Autorizado=True");
    cafe.start();
    Salvar_Escala_Impressora();
}

void TestDesk::add(const QString &table, const QString &changes)
{
    static const QHash<QString, QString> plain{
        {"Produtos",
         "(Codigo,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,Cod_Barra,Servico,Cardapio,Categoria)"
         " values (0,'10','2','10','SERRA','---','-------------',False,False,'DIVERSOS')"},
        {"Clientes", "(Codigo,Nick,CaminhoFoto,Grupo,Data_Nasc,Obs,Documento) values (0,'------','-----','NORMAL',"
                     "'01/01/1900','------','------')"},
        {"Categoria", "(Codigo) values (0)"},
        {"Descontos", "(Codigo,Motivo_Desconto,Fixo,Relativo,Absoluto,Grupo,Categoria,AtoCadastro,Valor,TipoVenda,"
                      "Condicao,LiberarAuto) values (0,'MOTIVO',True,'0','0','---','-----',False,'0','2','1',True)"}};
    cafe.execute("Insert into " + table + ' ' + plain[table]);
    change(table, changes + " Where Codigo=0");
}

void TestDesk::open()
{
    Descarregar_Forms();
    Form &form = m_make();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

bool TestDesk::isOpen() const
{
    return Form_Aberto(m_names.window);
}

QString TestDesk::shown(const QString &name)
{
    const char *property = at(name).inherits("QComboBox")        ? "currentText"
                           : at(name).inherits("QPlainTextEdit") ? "plainText"
                                                                 : "text";
    return at(name).property(property).toString();
}

void TestDesk::select(int first, int last)
{
    clickCell(list(), first, 1);
    clickCell(list(), last, 1, Qt::ShiftModifier);
}

void TestDesk::edit(int row)
{
    clickCell(list(), row, 1);
    press("cmdeditar");
}

void TestDesk::refuses(const QString &button, const QString &notice, const QString &focus)
{
    expectNoticeText(notice);
    press(button);
    QVERIFY2(focus.isEmpty() || at(focus).hasFocus(), qPrintable(notice));
}

QStringList TestDesk::stored(const QString &fields, const QString &table)
{
    return cafe.query("Select " + fields + " from " + (table.isEmpty() ? m_names.table : table) + " Order By Codigo");
}

QString TestDesk::row(int row)
{
    QStringList texts;
    for (int column = 0; column < list().Cols(); ++column)
        texts += list().TextMatrix(row, column);
    return texts.join('|');
}

QString TestDesk::highlighted()
{
    const QItemSelection rows = list().selectionModel()->selection();
    return rows.isEmpty() ? QString() : QString("%1-%2").arg(rows.first().top() + 1).arg(rows.first().bottom() + 1);
}

QStringList TestDesk::listed(int column)
{
    QStringList texts;
    for (int row = 1; row < list().Rows(); ++row)
        texts += list().TextMatrix(row, column);
    return texts;
}
