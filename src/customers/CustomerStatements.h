#pragma once

#include <QStringList>

struct CustomerState;
namespace Ui {
class frmcadastro_clientes;
}

// The statements that store the customer in the form. Texts are upper-cased but for the mail address and the note.

QString insertStatement(const Ui::frmcadastro_clientes &form, const CustomerState &state, double codigo);
/// Overwrites the customer under edit.
QString updateStatement(const Ui::frmcadastro_clientes &form, const CustomerState &state);

/// Carry another name to everything that points to the customer by its name.
QStringList renameStatements(const QString &newName, const QString &oldName);
/// Carry another nick there; the customer bears the given name by then.
QStringList nickStatements(const QString &newNick, const QString &name);
