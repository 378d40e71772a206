#include "sale/ProductSearch.h"

#include "checkout/SaleLock.h"
#include "configuration/Globais.h"
#include "data/Acesso_BD.h"
#include "data/Placeholders.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/window/BoxKeys.h"
#include "platform/window/Forms.h"
#include "platform/window/Look.h"
#include "products/LowStock.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"

namespace {
QString codedEntry(const QString &code, const QString &description)
{
    return "(" + code + ") " + description;
}

/// The description that an entry stands for. A code has at most three characters; a longer one stays before it, and a
/// description that begins with brackets of its own loses them, so that neither is found in the file. That stays.
QString describedBy(const QString &entry)
{
    const qsizetype end = entry.indexOf(')');
    return entry.startsWith('(') && end >= 0 && end <= 4 ? entry.mid(end + 2) : entry;
}
} // namespace

ProductSearch::ProductSearch(Ui::frmvenda &window, const SaleLock &lock) : ui(window), m_lock(lock)
{
    connect(ui.cmbprodutos, &ComboBox::Click, this, &ProductSearch::cmbprodutos_Click);
    const auto arrow = [this](int KeyCode) {
        if (KeyCode == vbKeyUp || KeyCode == vbKeyDown)
            cmbprodutos_Click();
    };
    connect(ui.cmbprodutos, &ComboBox::KeyDown, this, arrow);
    connect(ui.cmbprodutos, &ComboBox::KeyUp, this, arrow);
    connect(ui.cmbprodutos, &ComboBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii != vbKeyReturn)
            return;
        Buscar_Produtos(ui.cmbprodutos->currentText());
        cmbprodutos_Click();
        ui.txtquantidade->setFocus();
    });
    connect(ui.txtcod_barra, &TextBox::Change, this, [this] {
        DoEvents(WaitingInput::Stays);
        ui.txtcod_barra->focusAtEnd();
    });
    lock.connect(ui.txtcod_barra, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            txtcod_barra_Enter();
    });
    // Entered again, the box gives its old code up to the next scan.
    selectOnEntry(ui.txtcod_barra);
    selectOnEntry(ui.txtquantidade);
}

void ProductSearch::Listar_Produtos()
{
    ui.cmbprodutos->clear();
    forEachRow("Select * from Produtos Where Codigo <> 1 Order By Descrição", [&](const Recordset &rs) {
        FieldValue code;
        OnErrorResumeNext([&] { code = rs.Fields("Cod"); });
        const QString description = rs.Fields("Descrição").text();
        const bool coded = !code.isNull() && code.text() != Placeholder::NoProductCode;
        const QString entry = coded ? codedEntry(code.text(), description) : description;
        ui.cmbprodutos->addItem(entry, describedBy(entry));
    });
    ui.cmbprodutos->setCurrentIndex(-1);
}

int ProductSearch::entryOf(const QString &texto) const
{
    const QString description = texto.toUpper();
    const QString code = "(" + description;
    for (int index = 0; index < ui.cmbprodutos->count(); ++index) {
        const QString entry = ui.cmbprodutos->itemText(index).toUpper();
        if (entry.startsWith(description) || entry.startsWith(code))
            return index;
    }
    return -1;
}

bool ProductSearch::Buscar_Produtos(const QString &texto)
{
    if (texto.isEmpty())
        return true;
    const int index = entryOf(texto);
    if (index >= 0)
        ui.cmbprodutos->setCurrentIndex(index);
    return index >= 0;
}

QString ProductSearch::foundDescription() const
{
    return ui.cmbprodutos->currentData().toString();
}

bool ProductSearch::waitsForQuantity() const
{
    const QString text = ui.cmbprodutos->currentText();
    return ui.txtquantidade->hasFocus() && !text.isEmpty() && entryOf(text) >= 0;
}

void ProductSearch::cmbprodutos_Click()
{
    if (m_lock.Bloqueio_Desconto)
        return;
    if (!Buscar_Produtos(ui.cmbprodutos->currentText())) {
        saleTexts.notice("MsgBox2");
        return;
    }
    if (ui.cmbprodutos->currentText().isEmpty()) {
        setWarning(*ui.lblquant_estoque, false);
        ui.lblpreço_unitario->setCaption(saleTexts.loaded("String2"));
        ui.lblquant_estoque->setCaption(saleTexts.loaded("String3"));
        return;
    }
    Info_Produto(foundDescription().toUpper());
}

void ProductSearch::Info_Produto(const QString &descricao)
{
    const QString price = saleTexts.loaded("String2") + SimboloMoeda + " ";
    const QString sql = "Select * from Produtos Where Descrição='" + descricao + "' Order By Descrição";
    readFirstRow(sql, [&](const Recordset &rs) {
        bool service = false;
        bool low = false;
        OnErrorResumeNext([&] { ui.lblpreço_unitario->setCaption(price + rs.Fields("Valor_Unitario").text()); },
                          [&] { service = rs.Fields("Servico").boolean(); },
                          [&] {
                              ui.lblquant_estoque->setCaption(service ? saleTexts.loaded("String4")
                                                                      : saleTexts.loaded("String3") +
                                                                            rs.Fields("Quantidade").text());
                          },
                          [&] { low = !service && isLow(rs); });
        setWarning(*ui.lblquant_estoque, low);
    });
}

QString ProductSearch::Retornar_Descrição(const QString &cod_barra)
{
    QString entry;
    readFirstRow("Select Descrição,Cod From Produtos Where Cod_Barra='" + cod_barra + "'", [&](const Recordset &rs) {
        const QString code = rs.Fields("Cod").text();
        const QString description = rs.Fields("Descrição").text();
        entry = code == Placeholder::NoProductCode || code.isEmpty() ? description : codedEntry(code, description);
    });
    return entry;
}

void ProductSearch::txtcod_barra_Enter()
{
    const QString entry = Retornar_Descrição(ui.txtcod_barra->text());
    if (entry.isEmpty()) {
        saleTexts.notice("MsgBox2");
        // What comes next replaces the unknown code.
        ui.txtcod_barra->selectAll();
        return;
    }
    ui.cmbprodutos->setCurrentText(entry);
    cmbprodutos_Click();
    ui.txtquantidade->setFocus();
}

void ProductSearch::lookUp(const QString &cod_barra)
{
    ui.txtcod_barra->setText(cod_barra);
    txtcod_barra_Enter();
}

void ProductSearch::offerCode(const QString &cod_barra)
{
    ui.txtcod_barra->setText(cod_barra);
    ui.txtcod_barra->selectAll();
}
