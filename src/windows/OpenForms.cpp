#include "windows/OpenForms.h"

#include "platform/base/Machine.h"
#include "platform/window/Form.h"
#include "platform/window/Forms.h"

#include <algorithm>

bool Form_Aberto(const QString &name)
{
    const QList<Form *> forms = Forms::loaded();
    return std::any_of(forms.begin(), forms.end(), [&](const Form *form) { return form->Name() == name; });
}

void Aguardar_Form(const QString &name)
{
    constexpr int turnMilliseconds = 50;
    do {
        Machine::current().sleep(turnMilliseconds);
        DoEvents();
    } while (Form_Aberto(name));
}

void showAndWait(Form &window)
{
    window.Show();
    Sempre_No_Topo(window, true);
    Aguardar_Form(window.Name());
}

void Descarregar_Forms()
{
    const QList<Form *> forms = Forms::loaded();
    for (Form *form : forms) {
        // Unloading a window may have unloaded this one too.
        if (Forms::loaded().contains(form) && form->Name() != "frmprincipal_adm")
            form->Unload();
    }
}
