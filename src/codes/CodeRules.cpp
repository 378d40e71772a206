#include "codes/CodeRules.h"

#include "checkout/SaleDiscount.h"

QStringList codeRuleConditions(const QString &group)
{
    QStringList conditions;
    for (const QString registration : {"True", "False"})
        for (const QString &each : {group, QString("---")})
            conditions += "Grupo='" + each + "' AND AtoCadastro = " + registration + " AND TipoVenda='1' " +
                          SaleDiscount::ruleOrder();
    return conditions;
}
