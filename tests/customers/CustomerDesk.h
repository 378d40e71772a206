#pragma once

#include "customers/frmcadastro_clientes.h"
#include "platform/window/TextBox.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// The customers' window in a café with the groups NORMAL and VIP, worked by hand and keyboard. Registered are ANA LIMA
/// of the group VIP, BIA SÁ and CAIO REIS.
class CustomerDesk
{
public:
    CustomerDesk();

    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    void addCustomer(int codigo, const QString &nome, const QString &changes = "Obs='------'");
    void open();
    frmcadastro_clientes &window();
    FlexGrid &list() { return at<FlexGrid>("tab_clientes"); }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    QString shown(const QString &name);
    void press(const QString &name) { click(window(), name); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }
    /// Picks a row of the list and begins to edit it.
    void edit(int row);

    QString text(const QString &key) const;
    /// The refusal of a name or nick that another customer has.
    QString takenText(const QString &key, const QString &value) const;
    void expectNotice(const QString &key, const QString &titleKey = "MsgBox1_2");
    void expectNoticeText(const QString &text) { attendant.expectNotice(text, this->text("MsgBox1_2")); }
    void expectQuestion(const QString &key, const QString &titleKey, int icon, int answer);
    void expectOffer(int answer = vbNo) { expectQuestion("MsgBox21", "MsgBox13_2", vbInformation, answer); }
    void expectSave(int answer = vbYes) { expectQuestion("MsgBox5", "MsgBox5_2", vbQuestion, answer); }

    /// A field of the customers in the order of their codes.
    QStringList stored(const QString &fields);
    /// A column of the list, row by row.
    QStringList listed(int column);
};
