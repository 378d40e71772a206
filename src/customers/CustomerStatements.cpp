#include "customers/CustomerStatements.h"

#include "customers/Customer.h"
#include "platform/text/Numbers.h"

namespace {
QString flag(bool set)
{
    return set ? "1" : "0";
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

QString insertStatement(const Customer &customer, double codigo)
{
    const Customer row = customer.stored();
    const QStringList texts{row.Nome,          row.Data_Nasc,   row.Rua,
                            row.Numero,        row.Complemento, row.Bairro,
                            row.Cidade,        row.UF,          row.Tel_Residencial,
                            row.Tel_Comercial, row.Tel_Celular, row.E_Mail,
                            row.Obs,           row.CEP,         row.Grupo,
                            row.Nick,          row.Filiacao,    row.Documento};
    return "Insert into Clientes (Codigo, Nome, Data_Nasc, Rua, Numero, Complemento, Bairro, Cidade, "
           "UF,Tel_Residencial,Tel_Comercial,Tel_Celular,E_mail,Obs,CEP,Grupo,Nick, Filiacao, Documento, Autorizado, "
           "CaminhoFoto, MsgObs) values (" +
           Cstr(codigo) + ",'" + texts.join("','") + "'," + flag(row.Autorizado) + ",'" + row.CaminhoFoto + "'," +
           flag(row.MsgObs) + ")";
}

QString updateStatement(const Customer &customer, double codigo)
{
    const Customer row = customer.stored();
    return "Update Clientes Set Nome = '" + row.Nome + "', Data_Nasc ='" + row.Data_Nasc + "',Rua = '" + row.Rua +
           "', Numero='" + row.Numero + "', Complemento='" + row.Complemento + "', Bairro='" + row.Bairro +
           "', Cidade='" + row.Cidade + "', UF='" + row.UF + "', Tel_Residencial='" + row.Tel_Residencial +
           "', Tel_Comercial='" + row.Tel_Comercial + "', Tel_Celular='" + row.Tel_Celular + "', E_mail='" +
           row.E_Mail + "', Obs='" + row.Obs + "', Grupo='" + row.Grupo + "', Nick='" + row.Nick + "', CEP='" +
           row.CEP + "', CaminhoFoto='" + row.CaminhoFoto + "', MsgObs=" + flag(row.MsgObs) + ", Filiacao='" +
           row.Filiacao + "', Documento='" + row.Documento + "', Autorizado=" + flag(row.Autorizado) +
           " Where Codigo = " + Cstr(codigo);
}

QStringList carryOverStatements(const Customer &customer, const QString &oldName, const QString &oldNick)
{
    const Customer row = customer.stored();
    QStringList result;
    if (row.Nome != oldName.toUpper())
        result += statements(QStringList("Links") + tablesWithNick,
                             "Nome='" + row.Nome + "' Where Nome = '" + oldName.toUpper() + "'");
    // The customer bears the new name there by then.
    if (row.Nick != oldNick.toUpper())
        result += statements(tablesWithNick, "Nick='" + row.Nick + "' Where Nome = '" + row.Nome + "'");
    return result;
}
