#pragma once

#include "customers/frmcadastro_clientes.h"
#include "platform/window/Forms.h"
#include "tests/support/TestDesk.h"

/// The customers' window in a café with the groups NORMAL and VIP. Registered are ANA LIMA (1), BIA SÁ (2) and CAIO
/// REIS (5).
class CustomerDesk : public TestDesk
{
public:
    CustomerDesk() : TestDesk({"frmcadastro_clientes", "tab_clientes", "Clientes"}, use<frmcadastro_clientes>)
    {
        cafe.executeAll({"Delete from Grupo_Clientes", "Delete from Empresa",
                         "Insert into Grupo_Clientes (Grupo,Desconto) values ('Normal','0')",
                         "Insert into Grupo_Clientes (Grupo,Desconto) values ('VIP','5')",
                         "Insert into Empresa (Codigo,Cidade,UF,Cep) values (1,'Serra','ES','29.160-000')"});
        cafe.setIni("Grupo Clientes", "Padrao", "Normal");
        cafe.setIni("SQL", "servidor", cafe.dataFile());
        add("Clientes", "Codigo=2, Nome='BIA SÁ'");
        add("Clientes", "Codigo=5, Nome='CAIO REIS'");
    }

    frmcadastro_clientes &window() { return Forms::use<frmcadastro_clientes>(); }

    /// Types a new name, no nick and no document, and confirms.
    void enterCustomer(const QString &nome)
    {
        type("txtnome", nome);
        type("txtnick", {});
        type("txtdocumento", {});
        press("cmdok");
    }
    /// The refusal of a name or nick that another customer has.
    QString takenText(const QString &key, const QString &value) const
    {
        return text(key) + value + text("MsgBox6_2") + value + text("MsgBox6_3");
    }
    void expectOffer(int answer = vbNo, const Place &where = Place::current())
    {
        expectQuestion("MsgBox21", "MsgBox13_2", vbInformation, answer, where);
    }
    void expectSave(int answer = vbYes, const Place &where = Place::current())
    {
        expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, answer, where);
    }
};
