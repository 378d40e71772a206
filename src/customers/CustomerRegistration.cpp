#include "customers/CustomerRegistration.h"

#include "codes/frmcodigo_rapido.h"
#include "customers/CustomerForm.h"
#include "customers/CustomerList.h"
#include "customers/CustomerPhoto.h"
#include "customers/CustomerStatements.h"
#include "customers/CustomerTexts.h"
#include "customers/CustomerUniqueness.h"
#include "data/Lookups.h"
#include "data/Placeholders.h"
#include "data/Queries.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/window/Form.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"

CustomerRegistration::CustomerRegistration(Form &window, CustomerForm &form, CustomerList &list, CustomerPhoto &photo)
    : m_window(window), m_form(form), m_list(list), m_photo(photo)
{
}

void CustomerRegistration::cmdok_Click()
{
    m_form.testar_valores();
    const Customer typed = m_form.customer();
    if (typed.Nome.isEmpty()) {
        customerTexts.notice("MsgBox18");
        return m_form.focusOn(&Customer::Nome);
    }
    bool isNoDate = false;
    OnErrorGoToEnd([&] {
        // Before the placeholders, so that an empty nick or document is nobody's.
        if (const CustomerText taken = takenTextOfNew(typed))
            return m_form.focusOn(taken);
        const double codigo = OrRaise::keyBehind("Select Max(codigo) From Clientes");
        m_form.fillBeforeBirthDate();
        isNoDate = m_form.hasBirthDate() && !IsDate(typed.Data_Nasc);
        if (isNoDate) {
            customerTexts.notice("MsgBox19");
            return m_form.focusOn(&Customer::Data_Nasc);
        }
        m_form.fillFromBirthDate(Placeholder::NoBirthDate);
        const Customer customer = m_form.customer();
        const QDateTime now = Machine::current().now();
        if (const auto birth = readDate(customer.Data_Nasc); birth && *birth > now.date()) {
            customerTexts.noticeText(customerTexts.text("MsgBox20") + FormatDate(now));
            return m_form.focusOn(&Customer::Data_Nasc);
        }
        store(customer, codigo);
    });
    if (!isNoDate)
        m_list.enableButtons();
}

void CustomerRegistration::store(Customer customer, double codigo)
{
    customer.CaminhoFoto = m_photo.pathToStore(codigo);
    executeStatement(insertStatement(customer, codigo));
    m_list.addCustomer(codigo, customer);

    // What the photo is stays for the next customer, though nobody is shown. That stays.
    m_form.clear();
    m_form.selectFirstState();
    m_form.Selecionar_Grupo_Padrao();
    m_form.focusOn(&Customer::Nome);
    m_form.takeTownOfCafe();
    m_list.countAdded();
    if (customerTexts.confirms("MsgBox21", "MsgBox13_2", vbInformation))
        sellCode(customer);
}

void CustomerRegistration::sellCode(const Customer &customer)
{
    if (Tem_Link(customer.Nome.toUpper()))
        return customerTexts.notice("MsgBox3");
    Sempre_No_Topo(m_window, false);
    auto &window = Forms::use<frmcodigo_rapido>();
    window.Venda_ao_Cliente(customer.Nome, customer.Nick);
    window.Show();
    Sempre_No_Topo(window, true);
    m_form.Nick_Sequencial();
}
