#pragma once

#include <QList>
#include <QObject>

class QWidget;
class TextBox;
namespace Ui {
class frmcadastro_clientes;
}

/// The boxes of one customer: how Enter leads through them, what they begin with and what empty ones stand for.
class CustomerForm : public QObject
{
    Q_OBJECT

public:
    CustomerForm(Ui::frmcadastro_clientes &window, QObject *parent);

    /// Warns of every apostrophe and always lets the caller go on; the focus ends on the last box warned of.
    bool testar_valores();
    /// Fills the groups and selects the café's default one, which it mends in `config.ini` when it is gone.
    void Selecionar_Grupo_Padrao();
    /// Proposes the next number as the nick, where the café numbers its customers.
    void Nick_Sequencial();
    /// The mask of the postal code falls away in a region without one.
    void maskPostalCode();
    /// Town, state and postal code of the café itself, the likeliest ones of a new customer. Raises when a query fails.
    void takeTownOfCafe();

    /// Empties the boxes and unticks the ticks.
    void clear();
    void selectFirstState();

    bool hasBirthDate() const;
    // Empty boxes get what stands in the tables for nothing; those before and those behind the birth date.
    void fillUpToBirthDate();
    void fillBehindBirthDate();

    /// Discount of the group that is shown.
    void showDiscount();

private:
    void connectEnterChain();
    void connectGroup();

    Ui::frmcadastro_clientes &ui;
    /// All boxes but the observation, in the order of the window.
    QList<TextBox *> m_boxes;
};
