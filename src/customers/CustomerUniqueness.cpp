#include "customers/CustomerUniqueness.h"

#include "customers/CustomerTexts.h"
#include "data/Placeholders.h"
#include "data/Queries.h"

namespace {
const QString documentField = "Documento";

/// `others` narrows the search, as " AND …". Of a document it is told whose it is.
bool isTaken(const QString &field, const QString &typed, const QString &key, const QString &others = {})
{
    const QString value = typed.toUpper();
    QString owner;
    if (!OrRaise::readFirstRow("Select Nome From Clientes Where " + field + "='" + value + "'" + others,
                               [&](const Recordset &rs) { owner = rs.Fields("Nome").text(); }))
        return false;
    const QString refusal = customerTexts.text(key) + value;
    customerTexts.noticeText(field == documentField
                                 ? refusal + customerTexts.text("MsgBox8_2") + owner
                                 : refusal + customerTexts.text("MsgBox6_2") + value + customerTexts.text("MsgBox6_3"));
    return true;
}
} // namespace

CustomerText takenTextOfNew(const Customer &customer)
{
    if (isTaken("Nome", customer.Nome, "MsgBox6"))
        return &Customer::Nome;
    if (isTaken("Nick", customer.Nick, "MsgBox7"))
        return &Customer::Nick;
    return isTaken(documentField, customer.Documento, "MsgBox8") ? &Customer::Documento : nullptr;
}

CustomerText takenTextOfEdited(const Customer &customer, const QString &oldName)
{
    const bool renamed = customer.Nome.toUpper() != oldName.toUpper();
    if (renamed && isTaken("Nome", customer.Nome, "MsgBox6"))
        return &Customer::Nome;
    const QString others = " AND Nome <> '" + (renamed ? oldName : customer.Nome) + "'";
    if (isTaken("Nick", customer.Nick, "MsgBox7", others + " AND Nick <> '" + Placeholder::NoName + "'"))
        return &Customer::Nick;
    const bool hasDocument = customer.Documento != Placeholder::NoName && !customer.Documento.isEmpty();
    return hasDocument && isTaken(documentField, customer.Documento, "MsgBox8", others) ? &Customer::Documento
                                                                                        : nullptr;
}
