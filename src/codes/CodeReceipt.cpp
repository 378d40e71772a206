#include "codes/CodeReceipt.h"

#include "checkout/SaleDiscount.h"
#include "checkout/SaleReceipt.h"
#include "codes/CodeState.h"
#include "windows/Amounts.h"

namespace {
SaleReceipt::Keys codeKeys()
{
    return {.section = "frmcodigo_rapido",
            .dayNumber = "String8",
            .runningNumber = "String8_2",
            .printerDate = "DispositivoSaida1",
            .portDate = "DispositivoSaida3",
            .taxNumber = "DispositivoSaida5",
            .district = "DispositivoSaida6_2",
            .customer = "DispositivoSaida7",
            .noCustomer = "DispositivoSaida8",
            .total = "DispositivoSaida13",
            .discount = "DispositivoSaida14",
            .paid = "DispositivoSaida15",
            .change = {}};
}

/// Of whom and for what, in the words of the device.
void printDetails(SaleReceipt &receipt, const QString &name)
{
    receipt.linha() += 2;
    const auto line = [&](const QString &printerKey, const QString &portKey) {
        receipt.device().place(0, receipt.linha(), receipt.text(printerKey) + name);
        receipt.device().write(receipt.text(portKey) + name);
    };
    line("DispositivoSaida9", "DispositivoSaida10");
    ++receipt.linha();
    line("DispositivoSaida11", "DispositivoSaida12");
}
} // namespace

void printCodeReceipt(const CodeState &state, const SaleDiscount &discount)
{
    SaleReceipt::Content content;
    content.customer = state.Nome_Cliente;
    content.total = receiptAmount(discount.Total_Venda);
    content.discount = discount.Texto_Desconto;
    content.motive = [&discount] { return discount.chosenMotive(); };
    content.paid = discount.Total_Final;
    content.details = [&](SaleReceipt &receipt) { printDetails(receipt, state.Nome_Cliente); };
    SaleReceipt(codeKeys()).Gerar_Recibo(content);
}
