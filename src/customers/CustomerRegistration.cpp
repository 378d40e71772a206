#include "customers/CustomerRegistration.h"

#include "codes/frmcodigo_rapido.h"
#include "customers/CustomerForm.h"
#include "customers/CustomerList.h"
#include "customers/CustomerPhoto.h"
#include "customers/CustomerState.h"
#include "customers/CustomerStatements.h"
#include "customers/CustomerTexts.h"
#include "customers/CustomerUniqueness.h"
#include "data/Acesso_BD.h"
#include "data/Lookups.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/window/Form.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"
#include "ui_frmcadastro_clientes.h"

CustomerRegistration::CustomerRegistration(Form &window, Ui::frmcadastro_clientes &controls, CustomerState &state,
                                           CustomerForm &form, CustomerList &list, CustomerPhoto &photo)
    : m_window(window), ui(controls), m_state(state), m_form(form), m_list(list), m_photo(photo)
{
}

void CustomerRegistration::cmdok_Click()
{
    m_form.testar_valores();
    if (ui.txtnome->text().isEmpty()) {
        customerTexts.notice("MsgBox18");
        ui.txtnome->setFocus();
        return;
    }
    bool checkedTheDate = true;
    OnErrorGoToEnd([&] {
        if (isNameTaken(ui) || isNickTaken(ui) || isDocumentTaken(ui))
            return;
        const double codigo = OrRaise::keyBehind("Select Max(codigo) From Clientes");
        checkedTheDate = fillPlaceholders();
        if (!checkedTheDate || isBornLater())
            return;
        store(codigo);
    });
    if (checkedTheDate)
        m_list.enableButtons();
}

bool CustomerRegistration::fillPlaceholders()
{
    m_form.fillUpToBirthDate();
    if (!m_form.hasBirthDate()) {
        ui.txtdata_nascimento->setText(Placeholder::NoBirthDate);
    } else if (!IsDate(ui.txtdata_nascimento->text())) {
        customerTexts.notice("MsgBox19");
        ui.txtdata_nascimento->setFocus();
        return false;
    }
    m_form.fillBehindBirthDate();
    return true;
}

bool CustomerRegistration::isBornLater()
{
    const QDateTime now = Machine::current().now();
    const std::optional<QDate> birth = readDate(ui.txtdata_nascimento->text());
    if (!birth || *birth <= now.date())
        return false;
    customerTexts.noticeText(customerTexts.text("MsgBox20") + FormatDate(now));
    ui.txtdata_nascimento->setFocus();
    return true;
}

void CustomerRegistration::store(double codigo)
{
    const QString name = ui.txtnome->text();
    const QString nick = ui.txtnick->text();
    m_state.Autorizado = ui.chkautorização->isChecked() ? 1 : 0;
    m_photo.keepWebcamPicture(codigo);
    executeStatement(insertStatement(ui, m_state, codigo));
    m_list.addCustomer(codigo);

    // What the photo is stays for the next customer, though nobody is shown. That stays.
    m_form.clear();
    m_form.selectFirstState();
    m_form.Selecionar_Grupo_Padrao();
    ui.txtnome->setFocus();
    m_form.takeTownOfCafe();
    m_list.countAdded();
    if (customerTexts.confirms("MsgBox21", "MsgBox13_2", vbInformation))
        sellCode(name, nick);
}

void CustomerRegistration::sellCode(const QString &name, const QString &nick)
{
    if (Tem_Link(name.toUpper())) {
        customerTexts.notice("MsgBox3");
        return;
    }
    Sempre_No_Topo(m_window, false);
    auto &window = Forms::use<frmcodigo_rapido>();
    window.Venda_ao_Cliente(name, nick);
    window.Show();
    Sempre_No_Topo(window, true);
    m_form.Nick_Sequencial();
}
