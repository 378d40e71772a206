#include "customers/CustomerUniqueness.h"

#include "customers/CustomerTexts.h"
#include "data/Queries.h"
#include "ui_frmcadastro_clientes.h"

namespace {
/// The refusal is put together from the value and the name of the customer who has it.
template <typename Refusal>
bool isTaken(const QString &field, TextBox *box, const QString &others, Refusal refusal)
{
    const QString value = box->text().toUpper();
    QString owner;
    if (!OrRaise::readFirstRow("Select Nome From Clientes Where " + field + "='" + value + "'" + others,
                               [&](const Recordset &rs) { owner = rs.Fields("Nome").text(); }))
        return false;
    customerTexts.noticeText(refusal(value, owner));
    box->setFocus();
    return true;
}

auto inUse(const QString &key)
{
    return [key](const QString &value, const QString &) {
        return customerTexts.text(key) + value + customerTexts.text("MsgBox6_2") + value +
               customerTexts.text("MsgBox6_3");
    };
}
} // namespace

bool isNameTaken(const Ui::frmcadastro_clientes &form)
{
    return isTaken("Nome", form.txtnome, {}, inUse("MsgBox6"));
}

bool isNickTaken(const Ui::frmcadastro_clientes &form, const QString &others)
{
    return isTaken("Nick", form.txtnick, others, inUse("MsgBox7"));
}

bool isDocumentTaken(const Ui::frmcadastro_clientes &form, const QString &others)
{
    return isTaken("Documento", form.txtdocumento, others, [](const QString &value, const QString &owner) {
        return customerTexts.text("MsgBox8") + value + customerTexts.text("MsgBox8_2") + owner;
    });
}
