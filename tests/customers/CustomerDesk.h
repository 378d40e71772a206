#pragma once

#include "customers/frmcadastro_clientes.h"
#include "platform/window/TextBox.h"
#include "tests/support/ListDesk.h"

/// The customers' window in a café with the groups NORMAL and VIP. Registered are ANA LIMA of the group VIP, BIA SÁ and
/// CAIO REIS.
class CustomerDesk : public ListDesk
{
public:
    CustomerDesk();

    void addCustomer(int codigo, const QString &nome, const QString &changes = "Obs='------'");
    frmcadastro_clientes &window();
    /// Picks a row of the list and begins to edit it.
    void edit(int row);

    /// The refusal of a name or nick that another customer has.
    QString takenText(const QString &key, const QString &value) const;
    void expectOffer(int answer = vbNo) { expectQuestion("MsgBox21", "MsgBox13_2", vbInformation, answer); }
    void expectSave(int answer = vbYes) { expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, answer); }
};
