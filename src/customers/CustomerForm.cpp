#include "customers/CustomerForm.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "customers/CustomerTexts.h"
#include "data/Placeholders.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/BoxKeys.h"
#include "ui_frmcadastro_clientes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {
const QString emptyDate = "  /  /    ";
const QString emptyPostalCode = "  .   -   ";

template <typename Box>
void fillIfEmpty(Box *box, const QString &placeholder)
{
    if (box->text().isEmpty())
        box->setText(placeholder);
}

/// Warns when a box holds an apostrophe, which no text of a statement may.
template <typename Box>
void warnOfApostrophe(Box *box)
{
    if (!Tem_Apostrofo(box->text()))
        return;
    customerTexts.noticeText(box->property("Tag").toString() + customerTexts.text("MsgBox1"));
    if (box->isEnabled())
        box->setFocus();
}
} // namespace

CustomerForm::CustomerForm(Ui::frmcadastro_clientes &window)
    : ui(window)
    , m_fields{{"Nome", ui.txtnome, &Customer::Nome},
               {"Data_Nasc", ui.txtdata_nascimento, &Customer::Data_Nasc},
               {"Filiacao", ui.txtfiliação, &Customer::Filiacao},
               {"Documento", ui.txtdocumento, &Customer::Documento},
               {"Nick", ui.txtnick, &Customer::Nick},
               {"Rua", ui.txtrua, &Customer::Rua},
               {"Numero", ui.txtnumero, &Customer::Numero},
               {"Complemento", ui.txtComplemento, &Customer::Complemento},
               {"Bairro", ui.txtbairro, &Customer::Bairro},
               {"Cidade", ui.txtcidade, &Customer::Cidade},
               {"CEP", ui.txtCep, &Customer::CEP},
               {"Tel_Residencial", ui.txttel_residencial, &Customer::Tel_Residencial},
               {"Tel_Comercial", ui.txttel_comercial, &Customer::Tel_Comercial},
               {"Tel_Celular", ui.txttel_celular, &Customer::Tel_Celular},
               {"E_Mail", ui.txtmail, &Customer::E_Mail}}
{
    enterLeadsThrough(ui.txtnome, ui.txtdata_nascimento, ui.txtfiliação, ui.txtdocumento, ui.txtnick,
                      ui.cmbgrupo_clientes, ui.txtrua, ui.txtnumero, ui.txtComplemento, ui.txtbairro, ui.txtcidade,
                      ui.txtCep, ui.cmbUF, ui.txttel_residencial, ui.txttel_comercial, ui.txttel_celular, ui.txtmail,
                      ui.txtobs);
    connect(ui.cmbgrupo_clientes, &ComboBox::Click, this, &CustomerForm::showDiscount);
    takesEntriesOnly(ui.cmbgrupo_clientes);
    for (TextBox *box : {ui.txtnome, ui.txtcidade, static_cast<TextBox *>(ui.txtCep), ui.txtnome_busca})
        selectOnEntry(box);
}

bool CustomerForm::testar_valores()
{
    for (const Field &field : m_fields)
        warnOfApostrophe(field.box);
    warnOfApostrophe(ui.txtobs);
    warnOfApostrophe(ui.txtnome_busca);
    // It warns and never refuses, and that stays: the statement itself breaks.
    return true;
}

void CustomerForm::Selecionar_Grupo_Padrao()
{
    ComboBox &groups = *ui.cmbgrupo_clientes;
    QString standard = Ler_INI(caminhoConfig(), "Grupo Clientes", "Padrao");
    if (standard.isEmpty() || !hasRow("Select * from Grupo_Clientes Where Grupo='" + standard + "'"))
        standard = "NORMAL";
    standard = standard.toUpper();
    Gravar_INI(caminhoConfig(), "Grupo Clientes", "Padrao", standard);

    bool empty = true;
    forEachRow("Select * from Grupo_Clientes Order By Grupo", [&](const Recordset &rs) {
        if (std::exchange(empty, false))
            groups.clear();
        const QString group = rs.Fields("Grupo").text().toUpper();
        groups.addItem(group);
        if (group == standard)
            standard = Cstr(groups.count());
    });
    // A group that was not found and whose name is a number is taken for a position, and that stays.
    if (IsNumeric(standard) && Cdbl(standard) <= groups.count())
        groups.setCurrentIndex(qRound(Cdbl(standard)) - 1);
    else if (groups.count() > 0)
        groups.setCurrentIndex(0);
    showDiscount();
}

void CustomerForm::Nick_Sequencial()
{
    if (Ler_INI(caminhoConfig(), "Nick", "Sequencia") != "1")
        return;
    double proposal = 0;
    readFirstRow("Select Max(val(Nick)) from Clientes",
                 [&](const Recordset &rs) { proposal = rs.Fields(0).number() + 1; });
    if (proposal >= 1)
        ui.txtnick->setText(Format(proposal, u"0"));
}

void CustomerForm::maskPostalCode()
{
    // Nothing assigns the marks of the regions with another postal code. An empty one is found in every language name,
    // so that the mask stays wherever a language is known.
    const std::array<QString, 3> regionMarks;
    const QString language = NomeIdioma.toUpper();
    const bool found = std::any_of(regionMarks.begin(), regionMarks.end(),
                                   [&](const QString &mark) { return !language.isEmpty() && language.contains(mark); });
    if (found)
        return;
    ui.txtCep->setMask({});
    ui.txtCep->setText({});
}

void CustomerForm::takeTownOfCafe()
{
    OrRaise::readFirstRow("Select * From Empresa Where Codigo=1", [&](const Recordset &rs) {
        ui.txtcidade->setText(rs.Fields("Cidade").text());
        ui.cmbUF->setText(rs.Fields("UF").text());
        ui.txtCep->setText(rs.Fields("Cep").text());
    });
}

void CustomerForm::clear()
{
    for (const Field &field : m_fields)
        field.box->setText({});
    ui.txtobs->setText({});
    ui.txtdata_nascimento->setText(emptyDate);
    ui.txtCep->setText(emptyPostalCode);
    ui.chkautorização->setChecked(false);
    ui.chkobs->setChecked(false);
    ui.imgfoto->showNobody();
}

void CustomerForm::selectFirstState()
{
    if (ui.cmbUF->count() >= 2)
        ui.cmbUF->setCurrentIndex(0);
}

void CustomerForm::selectFirstGroup()
{
    ui.cmbgrupo_clientes->setText(Ler_INI(caminhoConfig(), "Grupo Clientes", "Padrao"));
    if (ui.cmbgrupo_clientes->count() > 0)
        ui.cmbgrupo_clientes->setCurrentIndex(0);
    showDiscount();
}

Customer CustomerForm::customer() const
{
    Customer customer;
    for (const Field &field : m_fields)
        customer.*field.text = field.box->text();
    customer.Grupo = ui.cmbgrupo_clientes->Text();
    customer.UF = ui.cmbUF->Text();
    customer.Obs = ui.txtobs->text();
    customer.Autorizado = ui.chkautorização->isChecked();
    customer.MsgObs = ui.chkobs->isChecked();
    return customer;
}

void CustomerForm::show(const Recordset &rs)
{
    for (const Field &field : m_fields)
        fillFrom(rs, field.name, field.box);
    fillFrom(rs, "Grupo", ui.cmbgrupo_clientes);
    fillFrom(rs, "UF", ui.cmbUF);
    fillFrom(rs, "Obs", ui.txtobs);
    const auto tickFrom = [&](const char *field, QCheckBox *box) {
        OnErrorResumeNext([&] { box->setChecked(!rs.Fields(field).isNull() && rs.Fields(field).boolean()); });
    };
    tickFrom("Autorizado", ui.chkautorização);
    tickFrom("MsgObs", ui.chkobs);
}

void CustomerForm::focusOn(CustomerText text)
{
    for (const Field &field : m_fields)
        if (field.text == text)
            field.box->setFocus();
}

void CustomerForm::fillBeforeBirthDate()
{
    fillIfEmpty(ui.txtnome, Placeholder::NoName);
    fillIfEmpty(ui.txtmail, Placeholder::NoName);
}

bool CustomerForm::hasBirthDate() const
{
    return ui.txtdata_nascimento->text() != emptyDate;
}

void CustomerForm::fillFromBirthDate(const QString &noBirthDate)
{
    if (!hasBirthDate())
        ui.txtdata_nascimento->setText(noBirthDate);
    if (ui.txtCep->text() == emptyPostalCode || ui.txtCep->text().isEmpty())
        ui.txtCep->setText(Placeholder::NoPostalCode);
    if (ui.cmbUF->Text().isEmpty())
        ui.cmbUF->setText(Placeholder::NoState);
    if (ui.cmbgrupo_clientes->Text().isEmpty())
        ui.cmbgrupo_clientes->setText(Placeholder::NoName);
    // A stored customer without any text for a date keeps none.
    for (const Field &field : m_fields)
        if (field.box != ui.txtdata_nascimento)
            fillIfEmpty(field.box, Placeholder::NoName);
    fillIfEmpty(ui.txtobs, Placeholder::NoName);
}

void CustomerForm::showDiscount()
{
    // Without groups nothing was ever selected, and the label stays as it was designed.
    if (ui.cmbgrupo_clientes->count() == 0)
        return;
    if (!readFirstRow("Select * from Grupo_Clientes Where Grupo='" + ui.cmbgrupo_clientes->Text().toUpper() + "'",
                      [&](const Recordset &rs) {
                          ui.lbldesconto->setText(customerTexts.loaded("String8") + rs.Fields("Desconto").text() + "%");
                      }))
        ui.lbldesconto->setText(customerTexts.loaded("String9"));
}
