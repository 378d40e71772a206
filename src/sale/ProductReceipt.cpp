#include "sale/ProductReceipt.h"

#include "checkout/SaleDiscount.h"
#include "checkout/SaleReceipt.h"
#include "configuration/Globais.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"

namespace {
constexpr int quantityColumn = 33;
constexpr int valueColumn = 46;
constexpr int portDescriptionWidth = 26;
constexpr int portQuantityWidth = 13;
const QString portRule(48, '=');

SaleReceipt::Keys productKeys()
{
    return {.section = "frmvenda",
            .dayNumber = "String1",
            .runningNumber = "String1_2",
            .printerDate = "DispositivoSaida6",
            .portDate = "DispositivoSaida8",
            .taxNumber = "DispositivoSaida10",
            .district = "DispositivoSaida11_2",
            .customer = "DispositivoSaida12",
            .noCustomer = "DispositivoSaida13",
            .total = "DispositivoSaida16",
            .discount = "DispositivoSaida17",
            .paid = "DispositivoSaida18",
            .change = "DispositivoSaida19"};
}

void rule(SaleReceipt &receipt)
{
    receipt.device().rule('=', receipt.linha());
    receipt.device().write(portRule);
}

void Detalhar_Produtos(SaleReceipt &receipt, const SaleReceipt::Content &content, const Cart &cart)
{
    ReceiptDevice &device = receipt.device();
    device.place(0, receipt.linha(), receipt.text("DispositivoSaida1"));
    device.place(quantityColumn, receipt.linha(), receipt.text("DispositivoSaida2"));
    device.place(valueColumn, receipt.linha(), receipt.text("DispositivoSaida3"));
    device.write(receipt.text("DispositivoSaida4"));
    receipt.lineDone(content);
    for (const CartLine &line : cart) {
        const QString quantity = line.Quantidade + saleTexts.loaded("String8");
        const QString value = SimboloMoeda + " " + line.Valor;
        device.place(0, receipt.linha(), line.Descrição);
        device.place(quantityColumn, receipt.linha(), quantity);
        device.place(valueColumn, receipt.linha(), value);
        device.write(line.Descrição.leftJustified(portDescriptionWidth) + quantity.leftJustified(portQuantityWidth) +
                     " " + value);
        receipt.lineDone(content);
    }
}

void printDetails(SaleReceipt &receipt, const SaleReceipt::Content &content, const Cart &cart)
{
    rule(receipt);
    receipt.linha() += 2;
    Detalhar_Produtos(receipt, content, cart);
    rule(receipt);
    receipt.linha() += 2;
    receipt.device().write();
}
} // namespace

void printProductReceipt(const Ui::frmvenda &window, const Cart &cart, const SaleDiscount &discount)
{
    SaleReceipt::Content content;
    content.withoutCustomer = !window.optcliente->isChecked();
    if (!content.withoutCustomer)
        content.customer = window.txtnome->text();
    content.total = window.lbltotal->Caption().toUpper();
    content.discount = discount.Texto_Desconto;
    content.motive = [&discount] { return discount.chosenMotive(); };
    OnErrorResumeNext<ErrorNumber::TypeMismatch>([&] { content.paid = shownAmount(window.txtvalor_pago->text()); });
    content.change = window.lbltroco->Caption();
    content.details = [&](SaleReceipt &receipt) { printDetails(receipt, content, cart); };
    SaleReceipt(productKeys()).Gerar_Recibo(content);
}
