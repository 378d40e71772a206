#pragma once

#include <QString>

namespace Ui {
class frmcadastro_clientes;
}

// What no two customers may share. Each asks the data file for a customer with what stands in the box, tells whose it
// is, and moves the focus to the box. `others` narrows the search, as " AND …". They raise when the
// query fails.

bool isNameTaken(const Ui::frmcadastro_clientes &form);
bool isNickTaken(const Ui::frmcadastro_clientes &form, const QString &others = {});
bool isDocumentTaken(const Ui::frmcadastro_clientes &form, const QString &others = {});
