#pragma once

#include <QString>

/// What the form holds of one customer, field by field as the table calls them; texts as they were typed.
struct Customer
{
    QString Nome;
    QString Data_Nasc;
    QString Filiacao;
    QString Documento;
    QString Nick;
    QString Grupo;
    QString Rua;
    QString Numero;
    QString Complemento;
    QString Bairro;
    QString Cidade;
    QString CEP;
    QString UF;
    QString Tel_Residencial;
    QString Tel_Comercial;
    QString Tel_Celular;
    QString E_Mail;
    QString Obs;
    QString CaminhoFoto;
    bool Autorizado = false;
    bool MsgObs = false;

    /// With its texts as the tables keep them: in capitals, but for the mail address and the note.
    Customer stored() const;
};

/// One text of a customer; null for none.
using CustomerText = QString Customer::*;
