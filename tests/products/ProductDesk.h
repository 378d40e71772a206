#pragma once

#include "products/frmcadastro_produtos.h"
#include "tests/support/TestDesk.h"

/// The products' window in a café with the categories BEBIDAS, DIVERSOS and LANCHES. Its catalogue, as it is listed:
/// ÁGUA (3), BALA (4), CAFÉ (5, a service), and the reserved SALDO (1).
class ProductDesk : public TestDesk
{
public:
    ProductDesk() : TestDesk({"frmcadastro_produtos", "tab_produtos", "Produtos"}, use<frmcadastro_produtos>)
    {
        cafe.executeAll({"Delete from Produtos", "Delete from Categoria"});
        for (const QString category : {"1, Nome='LANCHES'", "2, Nome='DIVERSOS'", "3, Nome='BEBIDAS'"})
            add("Categoria", "Codigo=" + category);
        cafe.setIni("Categorias", "Padrao", "DIVERSOS");
        add("Produtos", "Codigo=1, Descrição='SALDO', Cardapio=True");
        add("Produtos", "Codigo=3, Descrição='ÁGUA', Categoria='BEBIDAS', Cod='A1', Cod_Barra='7891200000074', "
                        "Cardapio=True");
        add("Produtos", "Codigo=4, Descrição='BALA'");
        add("Produtos", "Codigo=5, Descrição='CAFÉ', Servico=True, Cod='C1', Quantidade='0', Estoque_Min='0'");
    }

    /// Types a new product by keyboard alone: description, supplier, price, stock, barcode, code, minimum.
    void fill(const QStringList &entries)
    {
        at("txtdescrição").setFocus();
        for (const QString &entry : entries) {
            if (window().focusWidget()->inherits("QComboBox"))
                pressKey(*window().focusWidget(), Qt::Key_Return);
            typeText(*window().focusWidget(), entry);
            pressKey(*window().focusWidget(), Qt::Key_Return);
        }
    }
    void expectSave(int answer = vbYes, const Place &where = Place::current())
    {
        expectQuestion("MsgBox14", "MsgBox11_2", vbQuestion, answer, where);
    }
};
