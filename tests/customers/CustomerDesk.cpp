#include "tests/customers/CustomerDesk.h"

#include "configuration/Idiomas.h"
#include "data/Funcoes.h"
#include "platform/window/Forms.h"

#include <QTest>

CustomerDesk::CustomerDesk()
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

void CustomerDesk::open()
{
    Descarregar_Forms();
    auto &form = Forms::use<frmcadastro_clientes>();
    form.Show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

frmcadastro_clientes &CustomerDesk::window()
{
    return Forms::use<frmcadastro_clientes>();
}

QString CustomerDesk::shown(const QString &name)
{
    const char *property = at(name).inherits("QComboBox")        ? "currentText"
                           : at(name).inherits("QPlainTextEdit") ? "plainText"
                                                                 : "text";
    return at(name).property(property).toString();
}

void CustomerDesk::edit(int row)
{
    clickCell(list(), row, 1);
    press("cmdeditar");
}

QString CustomerDesk::text(const QString &key) const
{
    return textoIdioma("frmcadastro_clientes", key);
}

void CustomerDesk::expectNotice(const QString &key, const QString &titleKey)
{
    attendant.expectNotice(text(key), text(titleKey));
}

QString CustomerDesk::takenText(const QString &key, const QString &value) const
{
    return text(key) + value + text("MsgBox6_2") + value + text("MsgBox6_3");
}

void CustomerDesk::expectQuestion(const QString &key, const QString &titleKey, int icon, int answer)
{
    attendant.expect(text(key), vbYesNo + icon, text(titleKey), answer);
}

QStringList CustomerDesk::stored(const QString &fields)
{
    QStringList rows;
    for (const QStringList &row : cafe.query("Select " + fields + " from Clientes Order By Codigo"))
        rows += row.join('|');
    return rows;
}

QStringList CustomerDesk::listed(int column)
{
    QStringList texts;
    for (int row = 1; row < list().Rows(); ++row)
        texts += list().TextMatrix(row, column);
    return texts;
}
