#include "sale/frmvenda.h"

#include "checkout/ReceiptOptions.h"
#include "checkout/SaleDiscount.h"
#include "checkout/WriteThrough.h"
#include "configuration/Globais.h"
#include "customers/frmcadastro_clientes.h"
#include "data/Acesso_BD.h"
#include "data/Lookups.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"
#include "platform/window/Look.h"
#include "products/frmcadastro_produtos.h"
#include "sale/ProductRules.h"
#include "sale/ProductSearch.h"
#include "sale/SaleCart.h"
#include "sale/SaleConfirmation.h"
#include "sale/SaleCustomers.h"
#include "sale/SaleScans.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"
#include "windows/Amounts.h"
#include "windows/NumberKeys.h"
#include "windows/OpenForms.h"

frmvenda::frmvenda() : ui(std::make_unique<Ui::frmvenda>())
{
    ui->setupUi(this);

    m_discount = std::make_unique<SaleDiscount>(
        SaleDiscount::Controls{ui->chkdesconto, ui->txtvalor_desconto, ui->txtmotivo, ui->imgdesconto,
                               ui->lbltotal_final},
        SaleDiscount::Texts{.section = "frmvenda", .unknownMotive = "MsgBox15", .motiveTitle = "MsgBox15_2"}, m_lock);
    m_customers = std::make_unique<SaleCustomers>(*ui, m_state, m_lock);
    m_products = std::make_unique<ProductSearch>(*ui, m_lock);
    m_cart = std::make_unique<SaleCart>(*ui, m_state, m_lock, *m_discount, *m_products);
    m_confirmation = std::make_unique<SaleConfirmation>(*this, *ui, m_state, m_lock, *m_discount, *m_products, *m_cart);
    m_scans = std::make_unique<SaleScans>(*this, m_lock, *m_products, *m_cart);

    m_lock.connect(ui->lbltotal, &Label::Change, this, [this] { lbltotal_Change(); });
    connect(ui->lbltotal_final, &Label::Change, this, &frmvenda::lbltotal_final_Change);
    connectPayment();
    writeThrough(ui->chkrecibo, "Recibo Produtos", "Imprimir");
    opensReceiptOptions(ui->lblconfigurar_recibo, ui->chkrecibo);
    m_lock.connect(ui->cmdfinalizar, &QPushButton::clicked, this, [this] { m_confirmation->cmdfinalizar_Click(); });
    connect(ui->cmdcadastro_clientes, &QPushButton::clicked, this,
            [this] { visit<frmcadastro_clientes>(&frmvenda::Listar_Clientes); });
    connect(ui->cmdcadastro_produtos, &QPushButton::clicked, this,
            [this] { visit<frmcadastro_produtos>(&frmvenda::Listar_Produtos); });
    m_lock.connect(ui->cmdcancelar, &QPushButton::clicked, this, [this] { Unload(); });
}

frmvenda::~frmvenda() = default;

void frmvenda::connectPayment()
{
    connect(ui->txtvalor_pago, &TextBox::Change, this, [this] {
        DoEvents(WaitingInput::Stays);
        ui->txtvalor_pago->focusAtEnd();
    });
    m_lock.connect(ui->txtvalor_pago, &TextBox::Change, this, [this] { showChange(); });
    m_lock.connect(ui->txtvalor_pago, &TextBox::GotFocus, this, [this] { showChange(); });
    connect(ui->txtvalor_pago, &TextBox::GotFocus, this, &frmvenda::selectFilledAmount);
    m_lock.connect(ui->txtvalor_pago, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            m_confirmation->cmdfinalizar_Click();
        else
            KeyAscii = Filtrar_Numero(KeyAscii, ui->txtvalor_pago->text(), false);
    });
    connect(ui->optpago, &QRadioButton::clicked, this, &frmvenda::optpago_Click);
    connect(ui->optnão_pago, &QRadioButton::clicked, this, [this] {
        m_state.Debito_Venda = yesFlag;
        ui->txtvalor_pago->setEnabled(false);
    });
    connect(ui->optnão_pago, &QRadioButton::toggled, this, [this](bool unpaid) {
        for (QGroupBox *card : {ui->frame_pagamento, ui->frame_totais})
            setCardState(*card, unpaid ? CardState::Attention : CardState::Resting);
    });
}

void frmvenda::Form_Load()
{
    ui->lbldescrição_venda_produtos->setText(saleTexts.loaded("String10"));
    Sempre_No_Topo(*this, true);
    tickAsStored(ui->chkrecibo, "Recibo Produtos", "Imprimir");
    m_discount->Listar_Motivos_Descontos();
    Fechar_Recordsets_Globais();
    Listar_Clientes();
    Listar_Produtos();
    for (TextBox *box : {ui->txtvalor_pago, ui->txtvalor_desconto})
        replaceBlanks(*box);
    m_cart->setUpGrid();
    m_state = {};
    ui->lbltotal->setCaption(withSymbol(0));
    ui->lbltotal_final->setCaption(withSymbol(0));
    ui->lbltroco->setCaption(noChangeText());
    ui->chkdesconto->setChecked(false);
}

void frmvenda::Form_Activate()
{
    if (!m_lock.Bloqueio_Desconto)
        m_customers->takeCurrent();
}

void frmvenda::Form_Unload()
{
    Fechar_Recordset(RecordsetGlobal1);
    Fechar_Recordsets_Globais();
}

void frmvenda::Listar_Clientes()
{
    m_customers->Listar_Clientes();
}

void frmvenda::Listar_Produtos()
{
    m_products->Listar_Produtos();
}

void frmvenda::Adicionar_Produto(const QString &descricao, double quantidade)
{
    if (!m_lock.Bloqueio_Desconto)
        m_cart->Adicionar_Produto(descricao, quantidade);
}

void frmvenda::Clicar_Alvuso()
{
    if (!m_lock.Bloqueio_Desconto)
        ui->optavulsa->click();
}

void frmvenda::lbltotal_Change()
{
    m_discount->recalculate();
    lbltotal_final_Change();
    const Cart &cart = m_state.cart;
    const QString category = cart.size() == 1 ? Categoria_Do_Produto(cart.first().Descrição) : QString();
    const QString group = ui->optcliente->isChecked() ? Grupo_Do_Cliente(m_state.Nome_Cliente) : QString();
    m_discount->TratarDescontosAutomaticos(amountText(m_discount->Total_Venda), productRuleConditions(group, category));
}

void frmvenda::lbltotal_final_Change()
{
    if (ui->optnão_pago->isChecked())
        ui->txtvalor_pago->setText(Cstr(m_discount->Total_Final));
}

void frmvenda::optpago_Click()
{
    m_state.Debito_Venda = 0;
    ui->txtvalor_pago->setEnabled(true);
    ui->txtvalor_pago->setFocus();
    m_filledAmount = Cstr(m_discount->Total_Final);
    ui->txtvalor_pago->setText(m_filledAmount);
    selectFilledAmount();
}

/// What is typed replaces the amount that the program proposed.
void frmvenda::selectFilledAmount()
{
    if (ui->txtvalor_pago->text() == m_filledAmount)
        ui->txtvalor_pago->selectAll();
}

void frmvenda::showChange()
{
    const QString text = ui->txtvalor_pago->text();
    m_state.Texto_Pago = text.isEmpty() ? QString("0") : blanksAsZeros(text);
    double change = 0;
    OnErrorResumeNext([&] { change = shownAmount(Cdbl(m_state.Texto_Pago) - m_discount->Total_Final); });
    ui->lbltroco->setCaption(change > 0 ? withSymbol(change) : noChangeText());
}

template <typename Window>
void frmvenda::visit(void (frmvenda::*refill)())
{
    DoEvents();
    showAndWait(Forms::use<Window>());
    // This window may have gone with the program while it waited.
    if (!isLoaded())
        return;
    (this->*refill)();
    DoEvents();
}
