#include "tests/customers/CustomerDesk.h"

#include "data/Funcoes.h"
#include "platform/window/Forms.h"

CustomerDesk::CustomerDesk()
    : ListDesk("frmcadastro_clientes", "tab_clientes", "Clientes",
               []() -> Form & { return Forms::use<frmcadastro_clientes>(); })
{
    cafe.execute("Delete from Grupo_Clientes");
    cafe.execute("Insert into Grupo_Clientes (Grupo,Desconto) values ('Normal','0')");
    cafe.execute("Insert into Grupo_Clientes (Grupo,Desconto) values ('VIP','5')");
    cafe.execute("Delete from Empresa");
    cafe.execute("Insert into Empresa (Codigo,Cidade,UF,Cep) values (1,'Serra','ES','29.160-000')");
    cafe.setIni("Grupo Clientes", "Padrao", "Normal");
    cafe.setIni("SQL", "servidor", cafe.dataFile());
    addCustomer(1, "ANA LIMA", "Nick='ANINHA', Grupo='VIP', Documento='123', CaminhoFoto='-----', Autorizado=True");
    addCustomer(2, "BIA SÁ");
    addCustomer(5, "CAIO REIS");
    cafe.start();
    Salvar_Escala_Impressora();
}

void CustomerDesk::addCustomer(int codigo, const QString &nome, const QString &changes)
{
    cafe.execute(QString("Insert into Clientes (Codigo,Nome,Nick,Grupo,Data_Nasc,Obs,Documento) values (%1,'%2',"
                         "'------','NORMAL','01/01/1900','------','------')")
                     .arg(codigo)
                     .arg(nome));
    cafe.execute("Update Clientes Set " + changes + " Where Codigo=" + QString::number(codigo));
}

frmcadastro_clientes &CustomerDesk::window()
{
    return Forms::use<frmcadastro_clientes>();
}

void CustomerDesk::edit(int row)
{
    clickCell(list(), row, 1);
    press("cmdeditar");
}

QString CustomerDesk::takenText(const QString &key, const QString &value) const
{
    return text(key) + value + text("MsgBox6_2") + value + text("MsgBox6_3");
}
