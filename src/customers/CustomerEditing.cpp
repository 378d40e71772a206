#include "customers/CustomerEditing.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "customers/CustomerColumns.h"
#include "customers/CustomerForm.h"
#include "customers/CustomerList.h"
#include "customers/CustomerPhoto.h"
#include "customers/CustomerState.h"
#include "customers/CustomerStatements.h"
#include "customers/CustomerTexts.h"
#include "customers/CustomerUniqueness.h"
#include "data/Acesso_BD.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/Look.h"
#include "platform/window/Prompts.h"
#include "ui_frmcadastro_clientes.h"

CustomerEditing::CustomerEditing(Ui::frmcadastro_clientes &window, CustomerState &state, CustomerForm &form,
                                 CustomerList &list, CustomerPhoto &photo)
    : ui(window), m_state(state), m_form(form), m_list(list), m_photo(photo)
{
}

void CustomerEditing::cmdeditar_Click()
{
    if (ui.cmdeditar->text() == customerTexts.loaded("String10"))
        begin();
    else if (!customerTexts.confirms("MsgBox5", "MsgBox5_2", vbQuestion) || save())
        end();
}

void CustomerEditing::begin()
{
    if (m_state.LinhaSelecionada < 1 || ui.tab_clientes->RowSel() < 1) {
        customerTexts.notice("MsgBox4");
        return;
    }
    m_state.CodigoCliente = Val(ui.tab_clientes->TextMatrix(m_state.LinhaSelecionada, CustomerColumn::Codigo));
    m_state.LinhaEditada = m_state.LinhaSelecionada;
    EditarCliente(m_state.CodigoCliente);
    setUnderEdit(true);
}

void CustomerEditing::EditarCliente(double codigo)
{
    readFirstRow("Select * from Clientes Where Codigo=" + Cstr(codigo), [&](const Recordset &rs) {
        fillFrom(rs, "Nome", ui.txtnome);
        m_state.NomeAntigo = ui.txtnome->text();
        fillFrom(rs, "Nick", ui.txtnick);
        m_state.NickAntigo = ui.txtnick->text();
        fillFrom(rs, "Documento", ui.txtdocumento);
        fillFrom(rs, "Grupo", ui.cmbgrupo_clientes);
        fillFrom(rs, "E_Mail", ui.txtmail);
        fillFrom(rs, "Data_Nasc", ui.txtdata_nascimento);
        fillFrom(rs, "Rua", ui.txtrua);
        fillFrom(rs, "Numero", ui.txtnumero);
        fillFrom(rs, "Complemento", ui.txtComplemento);
        fillFrom(rs, "Bairro", ui.txtbairro);
        fillFrom(rs, "Cidade", ui.txtcidade);
        fillFrom(rs, "UF", ui.cmbUF);
        fillFrom(rs, "CEP", ui.txtCep);
        fillFrom(rs, "Tel_Residencial", ui.txttel_residencial);
        fillFrom(rs, "Tel_Comercial", ui.txttel_comercial);
        fillFrom(rs, "Tel_Celular", ui.txttel_celular);
        fillFrom(rs, "Obs", ui.txtobs);
        fillFrom(rs, "Filiacao", ui.txtfiliação);
        const auto tickFrom = [&](const char *field, QCheckBox *box) {
            OnErrorResumeNext([&] { box->setChecked(!rs.Fields(field).isNull() && rs.Fields(field).boolean()); });
        };
        tickFrom("Autorizado", ui.chkautorização);
        tickFrom("MsgObs", ui.chkobs);
        // Though the photo is shown, a save without a new one clears its path. That stays.
        m_state.CaminhoFoto = Placeholder::NoPhoto;
        ui.imgfoto->showStored(rs.Fields("CaminhoFoto").text());
    });
    m_form.showDiscount();
}

bool CustomerEditing::save()
{
    m_form.testar_valores();
    m_form.fillUpToBirthDate();
    // No test of the date here, unlike at the registration. That stays.
    if (!m_form.hasBirthDate())
        ui.txtdata_nascimento->setText(Placeholder::NoBirthDateEdited);
    m_form.fillBehindBirthDate();

    const bool renamed = ui.txtnome->text().toUpper() != m_state.NomeAntigo.toUpper();
    if (isTaken(renamed))
        return false;
    m_state.Autorizado = ui.chkautorização->isChecked() ? 1 : 0;
    m_photo.keepWebcamPicture(m_state.CodigoCliente);
    executeStatement(updateStatement(ui, m_state));
    carryOver(renamed);
    m_list.showCustomer(m_state.LinhaEditada, m_state.Autorizado == 1);
    return true;
}

bool CustomerEditing::isTaken(bool renamed)
{
    const QString others = " AND Nome <> '" + (renamed ? m_state.NomeAntigo : ui.txtnome->text()) + "'";
    if (renamed && isNameTaken(ui))
        return true;
    if (isNickTaken(ui, others + " AND Nick <> '" + Placeholder::NoName + "'"))
        return true;
    const QString document = ui.txtdocumento->text();
    return document != Placeholder::NoName && !document.isEmpty() && isDocumentTaken(ui, others);
}

void CustomerEditing::carryOver(bool renamed)
{
    QStringList statements;
    if (renamed)
        statements += renameStatements(ui.txtnome->text(), m_state.NomeAntigo);
    if (ui.txtnick->text().toUpper() != m_state.NickAntigo.toUpper())
        statements += nickStatements(ui.txtnick->text(), ui.txtnome->text());
    for (const QString &statement : std::as_const(statements))
        executeStatement(statement);
}

void CustomerEditing::end()
{
    m_form.clear();
    ui.cmbgrupo_clientes->setText(Ler_INI(caminhoConfig(), "Grupo Clientes", "Padrao"));
    // The first group, not the default one. That stays.
    if (ui.cmbgrupo_clientes->count() > 0)
        ui.cmbgrupo_clientes->setCurrentIndex(0);
    m_form.showDiscount();
    m_form.takeTownOfCafe();
    setUnderEdit(false);
    m_state.LinhaEditada = 0;
}

void CustomerEditing::setUnderEdit(bool underEdit)
{
    for (QPushButton *button : {ui.cmdexcluir, ui.cmdok, ui.cmdordenar})
        button->setEnabled(!underEdit);
    ui.cmdeditar->setText(customerTexts.loaded(underEdit ? "String11" : "String10"));
    setCardState(*ui.frame_cadastro, underEdit ? CardState::Editing : CardState::Resting);
}
