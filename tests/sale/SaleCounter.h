#pragma once

#include "sale/frmvenda.h"
#include "tests/support/TestDesk.h"

/// The window of product sales. "(12) ÁGUA", BALA and CAFÉ cost ten each, with ten of each in stock; rule 1 is free to
/// use. No receipt is asked for.
class SaleCounter : public TestDesk
{
public:
    explicit SaleCounter(const QLocale &region = brazil)
        : TestDesk({"frmvenda", "tab_consumo", "Venda_Produtos", "MsgBox1_6"}, use<frmvenda>, region)
    {
        cafe.setIni("Recibo Produtos", "Imprimir", "0");
        add("Produtos", "Codigo=2, Descrição='ÁGUA', Estoque_Min='8', Cod='12', Cod_Barra='7891200000074'");
        add("Produtos", "Codigo=3, Descrição='BALA'");
        add("Produtos", "Codigo=4, Descrição='CAFÉ', Estoque_Min='9'");
        add("Descontos", "Codigo=1, Fixo=False, LiberarAuto=False, Motivo_Desconto='NEGOCIADO'");
    }

    void put(const QString &product, const QString &quantity = "1") { putIntoCart(window(), product, quantity); }
    /// Lines of the cart as "description|quantity|value".
    QStringList cart()
    {
        QStringList lines;
        for (int line = 1; line < list().Rows(); ++line)
            lines += row(line).section('|', 1, 3);
        return lines;
    }

    void expectQuestion(const QString &amount, int answer = vbYes, const Attendant::Action &meanwhile = {},
                        const Place &where = Place::current())
    {
        attendant.expect("Confirma a venda no valor de R$ " + amount + "?", vbYesNo + vbInformation, "Atenção", answer,
                         meanwhile, where);
    }
    /// Pays with Enter in the box, which brings the question and the success.
    void sell(const QString &paid, const QString &amount = "10,00, paga por\nANA LIMA",
              const Place &where = Place::current())
    {
        expectQuestion(amount, vbYes, {}, where);
        expectNotice("MsgBox13", where);
        enter("txtvalor_pago", paid);
    }
    QStringList sold(const QString &fields) { return stored(fields); }
    QString stock(const QString &description)
    {
        return cafe.value("Select Quantidade from Produtos Where Descrição='" + description + "'");
    }
};
