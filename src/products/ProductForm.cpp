#include "products/ProductForm.h"

#include "data/Placeholders.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/text/Numbers.h"
#include "platform/window/BoxKeys.h"
#include "products/ProductRecord.h"
#include "products/ProductTexts.h"
#include "ui_frmcadastro_produtos.h"
#include "windows/Amounts.h"
#include "windows/NumberKeys.h"

namespace {
/// A price box after a save: a mask's digits without its separator, which count as no price.
const QString emptyPrice = "0000000";
constexpr int inMenu = 0;
constexpr int notInMenu = 1;

/// A price under edit; what is no number is shown as it is.
QString editedPrice(const QString &stored)
{
    const std::optional<double> price = readNumber(QStringView(stored));
    return price ? Format(*price, u"00000.00") : stored;
}

QString upperOr(const QString &text, const QString &placeholder)
{
    return text.isEmpty() ? placeholder : text.toUpper();
}

bool refuse(const QString &key, TextBox *box)
{
    productTexts.notice(key);
    box->setFocus();
    return false;
}
} // namespace

ProductForm::ProductForm(Ui::frmcadastro_produtos &window)
    : ui(window)
    , m_boxes{ui.txtdescrição, ui.txtfornecedor, ui.txtquantidade_atual, ui.txtestoque_min, ui.txtcod_barra, ui.txtcod}
{
    connectEnterChain();
    connect(ui.chkserviço, &QCheckBox::clicked, this, &ProductForm::chkserviço_Click);
    caretToEndOnChange(ui.txtcod);
    // These boxes hold zeros before anyone typed, which a typed number must replace.
    for (TextBox *box : {ui.txtvalor_unitario, ui.txtquantidade_atual, ui.txtestoque_min})
        selectOnEntry(box);
}

void ProductForm::connectEnterChain()
{
    enterLeadsThrough(ui.txtdescrição, ui.txtfornecedor, ui.txtvalor_unitario, ui.txtquantidade_atual, ui.txtcod_barra,
                      ui.txtcod, ui.cmbcardapio, ui.txtestoque_min, ui.cmdadicionar);
    connect(ui.txtvalor_unitario, &TextBox::KeyPress, this,
            [this](int &KeyAscii) { KeyAscii = Filtrar_Numero(KeyAscii, ui.txtvalor_unitario->text(), false); });
    connect(ui.txtquantidade_atual, &TextBox::KeyPress, this, keepDigits);
    connect(ui.txtestoque_min, &TextBox::KeyPress, this, keepDigits);
    connect(ui.cmbcardapio, &ComboBox::KeyDown, this, [](int &KeyCode) {
        if (KeyCode == vbKeyBack)
            KeyCode = 0;
    });
}

void ProductForm::chkserviço_Click()
{
    const bool service = ui.chkserviço->isChecked();
    for (QWidget *control :
         std::initializer_list<QWidget *>{ui.lblqte, ui.txtquantidade_atual, ui.lblest_min, ui.txtestoque_min})
        control->setEnabled(!service);
    if (service)
        for (TextBox *box : {ui.txtquantidade_atual, ui.txtestoque_min})
            box->setText("0");
}

void ProductForm::tickService(bool service)
{
    ui.chkserviço->setChecked(service);
    chkserviço_Click();
}

void ProductForm::listCategories(const QString &standard)
{
    ComboBox &categories = *ui.cmbcategoria;
    categories.clear();
    forEachRow("Select * from Categoria Order By Nome",
               [&](const Recordset &rs) { categories.addItem(rs.Fields("Nome").text()); });
    const int found = categories.findText(standard, Qt::MatchFixedString);
    categories.setText(found < 0 ? QString() : categories.itemText(found));
}

void ProductForm::fillPrice()
{
    replaceBlanks(*ui.txtvalor_unitario);
}

bool ProductForm::testar_valores(const Refusals &refusals)
{
    if (Tem_Apostrofo(ui.txtdescrição->text()))
        return refuse(refusals.apostrophe, ui.txtdescrição);
    if (ui.txtdescrição->text().isEmpty())
        return refuse("MsgBox2", ui.txtdescrição);
    TextBox *const stock = ui.txtquantidade_atual;
    if (stock->isEnabled() && stock->text().isEmpty())
        return refuse(refusals.noStock, stock);
    // What is no number is refused with what is too small, as a failure goes on inside the test.
    if (stock->isEnabled() && readNumber(QStringView(stock->text())).value_or(-1) < 0)
        return refuse(refusals.negativeStock, stock);
    TextBox *const minimum = ui.txtestoque_min;
    if (minimum->isEnabled() && minimum->text().isEmpty())
        return refuse("MsgBox5", minimum);
    if (minimum->isEnabled() && Val(QStringView(minimum->text())) < 0)
        return refuse("MsgBox4", minimum);
    fillPrice();
    if (readNumber(QStringView(ui.txtvalor_unitario->text())).value_or(0) <= 0)
        return refuse("MsgBox6", ui.txtvalor_unitario);
    return true;
}

ProductRecord ProductForm::record() const
{
    ProductRecord product;
    product.Descrição = ui.txtdescrição->text().toUpper();
    product.Quantidade = ui.txtquantidade_atual->text();
    product.Estoque_Min = ui.txtestoque_min->text();
    product.Valor_Unitario = amountText(ui.txtvalor_unitario->text());
    product.Fornecedor = upperOr(ui.txtfornecedor->text(), Placeholder::NoName);
    product.Cod = upperOr(ui.txtcod->text(), Placeholder::NoProductCode);
    // Stored as it was scanned, though looked for in capitals. It stays.
    product.Cod_Barra = ui.txtcod_barra->text().isEmpty() ? Placeholder::NoBarcode : ui.txtcod_barra->text();
    product.Categoria = ui.cmbcategoria->Text().toUpper();
    product.Servico = ui.chkserviço->isChecked();
    product.Cardapio = ui.cmbcardapio->currentIndex() == inMenu;
    return product;
}

void ProductForm::show(const ProductRecord &product)
{
    ui.txtdescrição->setText(product.Descrição);
    ui.cmbcategoria->setText(product.Categoria);
    ui.txtcod->setText(product.Cod);
    tickService(product.Servico);
    if (!product.Servico) {
        ui.txtquantidade_atual->setText(product.Quantidade);
        ui.txtestoque_min->setText(product.Estoque_Min);
    }
    ui.txtvalor_unitario->setText(editedPrice(product.Valor_Unitario));
    ui.txtfornecedor->setText(product.Fornecedor);
    ui.cmbcardapio->setCurrentIndex(product.Cardapio ? inMenu : notInMenu);
    ui.txtcod_barra->setText(product.Cod_Barra);
}

void ProductForm::clear()
{
    for (TextBox *box : std::as_const(m_boxes))
        box->setText({});
    ui.txtvalor_unitario->setText(emptyPrice);
    tickService(false);
    ui.txtdescrição->setFocus();
}

void ProductForm::setReservedEnabled(bool enabled)
{
    for (TextBox *box : {ui.txtquantidade_atual, ui.txtestoque_min, ui.txtfornecedor})
        box->setEnabled(enabled);
}
