#include "sale/ProductRules.h"

#include "checkout/SaleDiscount.h"
#include "data/Queries.h"

QStringList productRuleConditions(const QString &group, const QString &category)
{
    const QString ofGroup = "Grupo='" + group + "'";
    const QString ofCategory = "Categoria='" + category + "'";
    QStringList conditions{ofGroup + " AND " + ofCategory, ofGroup, ofCategory, "Grupo='---'"};
    for (QString &condition : conditions)
        condition += " AND AtoCadastro = False AND TipoVenda='2' " + SaleDiscount::ruleOrder();
    return conditions;
}

void TemDescontoAutomatico(const QString &categoria, bool &resposta)
{
    // The AND that is missing before Categoria stays missing: the answer is false every time, and sales that attendants
    // have always been able to make would be refused otherwise.
    resposta = hasRow("Select Codigo,Fixo,Relativo,Absoluto,Grupo, Categoria, AtoCadastro, Valor, TipoVenda From "
                      "Descontos Where LiberarAuto = True Categoria='" +
                      categoria + "' AND AtoCadastro = False AND TipoVenda='2' " + SaleDiscount::ruleOrder());
}
