#pragma once

#include <QString>

class Form;
struct CodeState;
namespace Ui {
class frmcodigo_rapido;
}

/// Creates access codes and links them to customers.
class CodeCreation
{
public:
    CodeCreation(Form &form, Ui::frmcodigo_rapido &window, CodeState &state);

    /// Twelve digits from 0 to 8.
    static QString randomCode();
    /// Puts zeros in front of the code in its box until it has twelve characters.
    void pad();

    /// Stores the code in the boxes. `ok` is 255 when nothing refused it, though the statement itself may have failed
    /// unseen.
    void Cadastrar_Codigo(quint8 &ok);
    /// Gives a stored code to a customer; a failure ends it without a word.
    void Vincular_Codigo(const QString &codigo, const QString &nome);

    /// Asks for the key before that of the next link.
    static constexpr const char *LastLink = "Select Max(Codigo) From Links";
    static QString linkStatement(double key, const QString &codigo, const QString &nome);

    /// Ends the hourglass, tells the text of that key, and hands the keyboard to what it speaks of.
    void say(const QString &key, class QWidget *focus = nullptr);

private:
    Form &m_form;
    Ui::frmcodigo_rapido &ui;
    CodeState &m_state;
};
