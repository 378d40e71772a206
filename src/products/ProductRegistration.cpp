#include "products/ProductRegistration.h"

#include "data/Acesso_BD.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "products/ProductForm.h"
#include "products/ProductList.h"
#include "products/ProductRecord.h"
#include "products/ProductStatements.h"
#include "products/ProductUniqueness.h"

void registerProduct(const Ui::frmcadastro_produtos &window, ProductForm &form, ProductList &list)
{
    if (!form.testar_valores({.apostrophe = "MsgBox1", .noStock = "MsgBox3", .negativeStock = "MsgBox4"}))
        return;
    if (isNewProductTaken(window))
        return;
    // The first product ever stored is the reserved one.
    const double codigo = keyBehind("Select Max(codigo) From Produtos");
    const ProductRecord product = form.record();
    executeIgnoringErrors(insertStatement(product, codigo));
    // Whether or not the data file took it. That stays.
    list.addProduct(codigo, product);
    form.clear();
}
