#include "codes/frmcodigo_rapido.h"

#include "checkout/ReceiptOptions.h"
#include "checkout/SaleDiscount.h"
#include "checkout/WriteThrough.h"
#include "codes/CodeCreation.h"
#include "codes/CodeRules.h"
#include "codes/CodeSale.h"
#include "codes/CodeTexts.h"
#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "data/Lookups.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/window/BoxKeys.h"
#include "ui_frmcodigo_rapido.h"
#include "windows/Amounts.h"
#include "windows/NumberKeys.h"

frmcodigo_rapido::frmcodigo_rapido() : ui(std::make_unique<Ui::frmcodigo_rapido>())
{
    ui->setupUi(this);
    m_discount = std::make_unique<SaleDiscount>(
        SaleDiscount::Controls{ui->chkdesconto, ui->txtvalor_desconto, ui->txtmotivo, ui->imgdesconto,
                               ui->lbltotal_final},
        SaleDiscount::Texts{.section = "frmcodigo_rapido", .unknownMotive = "MsgBox16", .motiveTitle = "MsgBox16_2"},
        m_lock);
    m_creation = std::make_unique<CodeCreation>(*this, *ui, m_state);
    m_sale = std::make_unique<CodeSale>(*this, *ui, m_state, *m_discount, *m_creation);

    connectCode();
    connect(ui->lbltotal, &Label::Change, this, &frmcodigo_rapido::lbltotal_Change);
    writeThrough(ui->chkimprimir_etiqueta, "Imprimir Etiqueta", "Ativo");
    writeThrough(ui->chkrecibo, "Recibo Codigo", "Imprimir");
    opensReceiptOptions(ui->lblconfigurar_recibo, ui->chkrecibo);
    connect(ui->cmdfinalizar, &QPushButton::clicked, this, [this] { m_sale->cmdfinalizar_Click(); });
    connect(ui->cmdsair, &QPushButton::clicked, this, &frmcodigo_rapido::Unload);
}

frmcodigo_rapido::~frmcodigo_rapido() = default;

void frmcodigo_rapido::connectCode()
{
    for (TextBox *box : {ui->txtadi_cartao, ui->txtvalor_disponível, ui->txturl, ui->txtvalor_desconto})
        selectOnEntry(box);
    enterMovesTo(ui->txtadi_cartao, ui->txturl);
    connect(ui->txturl, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii != vbKeyReturn)
            return;
        if (ui->txtvalor_disponível->isEnabled())
            ui->txtvalor_disponível->setFocus();
        else
            m_sale->cmdfinalizar_Click();
    });
    connect(ui->txtvalor_disponível, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            m_sale->cmdfinalizar_Click();
        else
            KeyAscii = Filtrar_Numero(KeyAscii, ui->txtvalor_disponível->text(), false);
    });
    connect(ui->txtvalor_disponível, &TextBox::Change, this, &frmcodigo_rapido::txtvalor_disponível_Change);
    connect(ui->cmdaleatorio, &QPushButton::clicked, this,
            [this] { ui->txtadi_cartao->setText(CodeCreation::randomCode()); });
    connect(ui->optexpira, &QRadioButton::clicked, this, &frmcodigo_rapido::optexpira_Click);
    connect(ui->opttempo_indeterminado, &QRadioButton::clicked, this, &frmcodigo_rapido::opttempo_indeterminado_Click);
}

void frmcodigo_rapido::Form_Load()
{
    const auto setting = [](const QString &section, const QString &key) {
        return Ler_INI(caminhoConfig(), section, key);
    };
    Sempre_No_Topo(*this, true);
    ui->txtadi_cartao->setEchoMode(setting("Codigo_Acesso", "Ocultar") == "1" ? QLineEdit::Password
                                                                              : QLineEdit::Normal);
    m_discount->Listar_Motivos_Descontos();
    ui->lbldata_criação->setText(codeTexts.loaded("String4") + FormatDate(Machine::current().now(), FormatoData));
    tickAsStored(ui->chkimprimir_etiqueta, "Imprimir Etiqueta", "Ativo");
    if (const QString url = setting("Codigo Rapido", "Url"); !url.isEmpty())
        ui->txturl->setText(url);
    const bool prepaid = setting("Codigo Rapido", "Tipo") == "1";
    ui->optexpira->setChecked(prepaid);
    ui->opttempo_indeterminado->setChecked(!prepaid);
    if (prepaid)
        optexpira_Click();
    else
        opttempo_indeterminado_Click();
    if (const QString value = setting("Codigo Rapido", "Valor Disp"); !value.isEmpty())
        ui->txtvalor_disponível->setText(value);
    replaceBlanks(*ui->txtvalor_disponível);
    tickAsStored(ui->chkrecibo, "Recibo Codigo", "Imprimir");
}

void frmcodigo_rapido::Venda_ao_Cliente(const QString &Nome, const QString &Nick)
{
    const bool tookOver = !m_state.Nome_Cliente.isEmpty();
    m_state.Nome_Cliente = Nome;
    m_state.Nick_Cliente = Nick;
    // The window was still open for somebody else, whose discount is no business of this customer's.
    if (tookOver) {
        m_discount->beginAnew();
        lbltotal_Change();
    }
    ui->lblcliente->setText(Nome.toUpper());
    fitToContents();
    readFirstRow("Select Codigo From Clientes Where Nome='" + Nome.toUpper() + "'", [&](const Recordset &rs) {
        const QString code = rs.Fields("Codigo").text();
        ui->txtadi_cartao->setText(code);
        ui->lblcodigo->setText(codeTexts.loaded("String2") + code);
    });
    // The keyboard begins here, and what is typed replaces the proposal.
    ui->txtadi_cartao->setFocus();
    ui->txtadi_cartao->selectAll();
}

void frmcodigo_rapido::optexpira_Click()
{
    m_state.Tipo_Inicial = "E";
    ui->txtvalor_disponível->setEnabled(true);
    showShape(true);
}

void frmcodigo_rapido::opttempo_indeterminado_Click()
{
    m_state.Tipo_Inicial = "I";
    ui->txtvalor_disponível->setText(QString("00000") + "00");
    ui->txtvalor_disponível->setEnabled(false);
    showShape(false);
}

void frmcodigo_rapido::showShape(bool prepaid)
{
    ui->cmdfinalizar->setText(codeTexts.loaded(prepaid ? "String6" : "String7"));
    for (QWidget *part : {static_cast<QWidget *>(ui->frame_conjunto_valor), static_cast<QWidget *>(ui->chkrecibo),
                          static_cast<QWidget *>(ui->lblconfigurar_recibo)})
        part->setVisible(prepaid);
    fitToContents();
}

void frmcodigo_rapido::fitToContents()
{
    ui->frame_global->layout()->activate();
    ui->frame_global->updateGeometry();
    fitHeight();
}

void frmcodigo_rapido::txtvalor_disponível_Change()
{
    m_discount->Total_Venda = 0;
    OnErrorResumeNext<ErrorNumber::TypeMismatch>(
        [this] { m_discount->Total_Venda = shownAmount(ui->txtvalor_disponível->text()); });
    ui->lbltotal->setCaption(withSymbol(m_discount->Total_Venda));
    m_discount->txtmotivo_Click();
}

void frmcodigo_rapido::lbltotal_Change()
{
    m_discount->TratarDescontosAutomaticos(amountText(m_discount->Total_Venda),
                                           codeRuleConditions(Grupo_Do_Cliente(m_state.Nome_Cliente.toUpper())));
    m_discount->recalculate();
}
