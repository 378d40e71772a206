#pragma once

#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// Rows of a table of texts, written with "|" between their fields.
QList<QStringList> table(const QStringList &rows);

/// A counter in a café with an open till, worked by hand and keyboard. It sells "(12) ÁGUA", BALA and CAFÉ at ten each,
/// with ten of each in stock, to ANA LIMA of the group VIP; rule 1 is free to use. No receipt is asked for.
class SaleCounter
{
public:
    explicit SaleCounter(const QLocale &region = QLocale(QLocale::Portuguese, QLocale::Brazil));

    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    /// Adds a product, a customer, or a fixed, automatic rule for all; `changes` are the fields that differ.
    void add(const QString &table, const QString &changes);
    void change(const QString &table, const QString &changes) { cafe.execute("Update " + table + " Set " + changes); }

    void open();
    Form &window() { return loadedWindow("frmvenda"); }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    QString shown(const QString &name);
    void press(const QString &name) { click(window(), name); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }
    void enter(const QString &name, const QString &text);
    void put(const QString &product, const QString &quantity = "1");
    /// Lines of the cart as "description|quantity|value".
    QStringList cart();

    void expectNotice(const QString &key);
    void expectTooMuch(const QString &quantity, const QString &product, const QString &stock);
    void expectQuestion(const QString &amount, int answer = vbYes);
    /// Pays with Enter in the box, which brings the question and the success.
    void sell(const QString &paid, const QString &amount = "10,00, paga por\nANA LIMA");
    QStringList sold(const QString &fields);
    QString stock(const QString &description);
};
