#pragma once

#include "customers/Customer.h"

#include <QList>
#include <QObject>

class Recordset;
class TextBox;
namespace Ui {
class frmcadastro_clientes;
}

/// The boxes of one customer: how Enter leads through them, what they begin with and what empty ones stand for.
class CustomerForm : public QObject
{
    Q_OBJECT

public:
    explicit CustomerForm(Ui::frmcadastro_clientes &window);

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
    void selectFirstGroup();

    /// What the boxes hold now; the photo is not among them.
    Customer customer() const;
    /// Fills the boxes from a row of the customers, but for those whose field the file doesn't have.
    void show(const Recordset &rs);
    void focusOn(CustomerText text);

    // Empty boxes get what stands in the tables for nothing, in two steps: a new customer's birth date is tested
    // between them, before it gets its own. The boxes go on showing it, so that the customer is to be taken anew.
    void fillBeforeBirthDate();
    void fillFromBirthDate(const QString &noBirthDate);
    bool hasBirthDate() const;

    /// Discount of the group that is shown.
    void showDiscount();

private:
    Ui::frmcadastro_clientes &ui;
    struct Field
    {
        const char *name;
        TextBox *box;
        CustomerText text;
    };
    /// The fields with a box of one line, in the order of the window.
    const QList<Field> m_fields;
};
