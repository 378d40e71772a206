#include "tests/products/ProductDesk.h"

#include "data/Funcoes.h"
#include "platform/window/Forms.h"
#include "products/frmcadastro_produtos.h"

ProductDesk::ProductDesk()
    : ListDesk("frmcadastro_produtos", "tab_produtos", "Produtos",
               []() -> Form & { return Forms::use<frmcadastro_produtos>(); })
{
    cafe.executeAll({"Delete from Produtos", "Delete from Categoria",
                     "Insert into Categoria (Codigo,Nome) values (1,'LANCHES')",
                     "Insert into Categoria (Codigo,Nome) values (2,'DIVERSOS')",
                     "Insert into Categoria (Codigo,Nome) values (3,'BEBIDAS')"});
    cafe.setIni("Categorias", "Padrao", "DIVERSOS");
    addProduct(1, "SALDO", "Cardapio=True");
    addProduct(3, "ÁGUA", "Categoria='BEBIDAS', Cod='A1', Cod_Barra='7891200000074', Cardapio=True");
    addProduct(4, "BALA");
    addProduct(5, "CAFÉ", "Servico=True, Cod='C1', Quantidade='0', Estoque_Min='0'");
    // The two sets of refusals differ, as they may in a language.
    QByteArray texts = cafe.readFile("Languages/Portugues3.lng");
    for (const char *key : {"MsgBox15=\"", "MsgBox16=\"", "MsgBox17=\""})
        texts.replace(key, QByteArray(key) + "Edição: ");
    cafe.writeFile("Languages/Portugues3.lng", texts);
    cafe.start();
    Salvar_Escala_Impressora();
}

void ProductDesk::addProduct(int codigo, const QString &descricao, const QString &changes)
{
    cafe.execute(QString("Insert into Produtos (Codigo,Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,"
                         "Cod_Barra,Servico,Cardapio,Categoria) values (%1,'%2','10','2','2,50','SERRA','---',"
                         "'-------------',False,False,'DIVERSOS')")
                     .arg(codigo)
                     .arg(descricao));
    cafe.execute("Update Produtos Set " + changes + " Where Codigo=" + QString::number(codigo));
}

void ProductDesk::fill(const QStringList &entries)
{
    at("txtdescrição").setFocus();
    for (const QString &entry : entries) {
        if (window().focusWidget()->inherits("QComboBox"))
            pressKey(*window().focusWidget(), Qt::Key_Return);
        typeText(*window().focusWidget(), entry);
        pressKey(*window().focusWidget(), Qt::Key_Return);
    }
}

void ProductDesk::edit(int row)
{
    clickCell(list(), row, 1);
    press("cmdeditar");
}

QString ProductDesk::row(int row)
{
    QStringList texts;
    for (int column = 0; column < list().Cols(); ++column)
        texts += list().TextMatrix(row, column);
    return texts.join('|');
}
