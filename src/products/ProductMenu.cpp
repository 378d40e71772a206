#include "products/ProductMenu.h"

#include "data/Statements.h"
#include "platform/window/Prompts.h"
#include "products/ProductList.h"
#include "products/ProductTexts.h"

void setMenuFlags(ProductList &list, bool inMenu)
{
    if (!productTexts.confirms(inMenu ? "MsgBox12" : "MsgBox11", "MsgBox11_2", vbQuestion))
        return;
    executeIgnoringErrors(QString("UPDATE Produtos Set Cardapio=%1 Where Codigo > 0").arg(inMenu ? "True" : "False"));
    list.showMenuFlag(inMenu);
}
