#include "tests/support/TestDesk.h"

#include "windows/OpenForms.h"
#include "windows/PageScale.h"

TestDesk::TestDesk(const Names &names, Form &(*make)(), const QLocale &region, const CafeOptions &options)
    : Desk(attendant, names), cafe(region, options), m_make(make)
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

void TestDesk::open(const Place &where)
{
    Descarregar_Forms();
    Form &form = m_make();
    form.Show();
    require(QTest::qWaitForWindowActive(&form), form.Name() + " does not open", where);
}

bool TestDesk::isOpen() const
{
    return Form_Aberto(m_names.window);
}

QStringList TestDesk::stored(const QString &fields, const QString &table)
{
    return cafe.query("Select " + fields + " from " + (table.isEmpty() ? m_names.table : table) + " Order By Codigo");
}
