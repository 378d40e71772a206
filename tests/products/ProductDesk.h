#pragma once

#include "platform/window/TextBox.h"
#include "tests/support/ListDesk.h"

/// The products' window in a café with the categories BEBIDAS, DIVERSOS and LANCHES. Its catalogue, as it is listed:
/// ÁGUA (3), BALA (4), CAFÉ (5, a service), and the reserved SALDO (1).
class ProductDesk : public ListDesk
{
public:
    ProductDesk();

    void addProduct(int codigo, const QString &descricao, const QString &changes = "Hora='00:00:00'");
    /// Types a new product by keyboard alone: description, supplier, price, stock, barcode, code, minimum.
    void fill(const QStringList &entries);
    /// Picks a row of the list and begins to edit it.
    void edit(int row);

    void expectSave(int answer = vbYes) { expectQuestion("MsgBox14", "MsgBox11_2", vbQuestion, answer); }
    /// A row of the list with "|" between its texts.
    QString row(int row);
};
