#include "customers/CustomerStatements.h"

#include "customers/CustomerState.h"
#include "platform/text/Numbers.h"
#include "ui_frmcadastro_clientes.h"

namespace {
QString upper(const QString &text)
{
    return text.toUpper();
}

QString flag(const QCheckBox *box)
{
    return box->isChecked() ? "1" : "0";
}

const QStringList tablesWithNick{"Lista_espera",      "Log",           "Clientes_Bloqueados",
                                 "Monitor_Impressao", "Venda_Codigos", "Venda_Produtos"};

QStringList statements(const QStringList &tables, const QString &change)
{
    QStringList result;
    for (const QString &table : tables)
        result += "Update " + table + " Set " + change;
    return result;
}
} // namespace

QString insertStatement(const Ui::frmcadastro_clientes &form, const CustomerState &state, double codigo)
{
    const QStringList texts{upper(form.txtnome->text()),
                            upper(form.txtdata_nascimento->text()),
                            upper(form.txtrua->text()),
                            upper(form.txtnumero->text()),
                            upper(form.txtComplemento->text()),
                            upper(form.txtbairro->text()),
                            upper(form.txtcidade->text()),
                            upper(form.cmbUF->Text()),
                            upper(form.txttel_residencial->text()),
                            upper(form.txttel_comercial->text()),
                            upper(form.txttel_celular->text()),
                            form.txtmail->text(),
                            form.txtobs->text(),
                            upper(form.txtCep->text()),
                            upper(form.cmbgrupo_clientes->Text()),
                            upper(form.txtnick->text()),
                            upper(form.txtfiliação->text()),
                            upper(form.txtdocumento->text())};
    return "Insert into Clientes (Codigo, Nome, Data_Nasc, Rua, Numero, Complemento, Bairro, Cidade, "
           "UF,Tel_Residencial,Tel_Comercial,Tel_Celular,E_mail,Obs,CEP,Grupo,Nick, Filiacao, Documento, Autorizado, "
           "CaminhoFoto, MsgObs) values (" +
           Cstr(codigo) + ",'" + texts.join("','") + "'," + QString::number(state.Autorizado) + ",'" +
           upper(state.CaminhoFoto) + "'," + flag(form.chkobs) + ")";
}

QString updateStatement(const Ui::frmcadastro_clientes &form, const CustomerState &state)
{
    return "Update Clientes Set Nome = '" + upper(form.txtnome->text()) + "', Data_Nasc ='" +
           upper(form.txtdata_nascimento->text()) + "',Rua = '" + upper(form.txtrua->text()) + "', Numero='" +
           upper(form.txtnumero->text()) + "', Complemento='" + upper(form.txtComplemento->text()) + "', Bairro='" +
           upper(form.txtbairro->text()) + "', Cidade='" + upper(form.txtcidade->text()) + "', UF='" +
           upper(form.cmbUF->Text()) + "', Tel_Residencial='" + upper(form.txttel_residencial->text()) +
           "', Tel_Comercial='" + upper(form.txttel_comercial->text()) + "', Tel_Celular='" +
           upper(form.txttel_celular->text()) + "', E_mail='" + form.txtmail->text() + "', Obs='" +
           form.txtobs->text() + "', Grupo='" + upper(form.cmbgrupo_clientes->Text()) + "', Nick='" +
           upper(form.txtnick->text()) + "', CEP='" + upper(form.txtCep->text()) + "', CaminhoFoto='" +
           upper(state.CaminhoFoto) + "', MsgObs=" + flag(form.chkobs) + ", Filiacao='" +
           upper(form.txtfiliação->text()) + "', Documento='" + upper(form.txtdocumento->text()) +
           "', Autorizado=" + QString::number(state.Autorizado) + " Where Codigo = " + Cstr(state.CodigoCliente);
}

QStringList renameStatements(const QString &newName, const QString &oldName)
{
    return statements(QStringList("Links") + tablesWithNick,
                      "Nome='" + upper(newName) + "' Where Nome = '" + upper(oldName) + "'");
}

QStringList nickStatements(const QString &newNick, const QString &name)
{
    return statements(tablesWithNick, "Nick='" + upper(newNick) + "' Where Nome = '" + upper(name) + "'");
}
