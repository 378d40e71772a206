#include "customers/CustomerRemoval.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "customers/CustomerColumns.h"
#include "customers/CustomerState.h"
#include "customers/CustomerTexts.h"
#include "data/Statements.h"
#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "platform/window/Prompts.h"

#include <algorithm>

namespace {
void removeRows(const FlexGrid &grid, int first, int last)
{
    QStringList codes;
    QStringList names;
    for (int row = first; row <= last; ++row) {
        codes += "Codigo=" + grid.TextMatrix(row, CustomerColumn::Codigo);
        names += "Nome='" + grid.TextMatrix(row, CustomerColumn::Name) + "'";
    }
    const QString links = "Links Where " + names.join(" OR ");
    executeStatement("DELETE FROM Clientes WHERE " + codes.join(" OR "));
    // Before the links through which they are found.
    executeStatement("Delete from Codigo_Acesso WHERE Codigo_Acesso in (Select Codigo_Acesso from " + links + ")");
    executeStatement("Delete from " + links);
}
} // namespace

bool removeCustomers(Form &form, const FlexGrid &tab_clientes, const CustomerState &state)
{
    const int picked = state.LinhaSelecionada;
    const int selected = tab_clientes.RowSel();
    // The heading of the first column is made of blanks. The first customer of an empty list is nobody's pick yet.
    if (tab_clientes.Rows() == 1 || picked < 1 ||
        tab_clientes.TextMatrix(tab_clientes.Row(), CustomerColumn::Codigo).trimmed().isEmpty()) {
        customerTexts.notice("MsgBox9");
        return false;
    }
    const bool single = selected == picked;
    if (!customerTexts.confirms(single ? "MsgBox10" : "MsgBox11", "MsgBox1_2", vbQuestion))
        return false;

    form.setMousePointer(vbHourglass);
    const bool removed = OnErrorGoToEnd([&] {
        const LongWork work;
        // The path of the main program's server takes the place of the one in force until a window is opened from the
        // main window again; the open file goes on. That stays.
        CaminhoBD = Ler_INI(caminhoConfig(), "SQL", "servidor");
        if (single)
            removeRows(tab_clientes, tab_clientes.Row(), tab_clientes.Row());
        else
            removeRows(tab_clientes, std::min(picked, selected), std::max(picked, selected));
    });
    if (!removed)
        customerTexts.notice("MsgBox14");
    else if (single)
        customerTexts.notice("MsgBox12");
    else
        customerTexts.notice("MsgBox13", "MsgBox13_2");
    return removed;
}
