#pragma once

#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

inline const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);
inline const QLocale unitedStates(QLocale::English, QLocale::UnitedStates);

/// A product as the catalogue holds it; amounts are texts of the region.
struct Product
{
    int code;
    QString description;
    QString price = "10";
    QString stock = "10";
    QString minimum = "0";
    QString internalCode = "---";
    QString barcode = "-------------";
    bool service = false;
    QString category = "DIVERSOS";
};

/// A rule of discount; what isn't named makes a fixed, automatic rule of product sales for everybody at any total.
struct Rule
{
    int code;
    QString relative = "0";
    QString absolute = "0";
    QString threshold = "0";
    int condition = 1;
    QString group = "---";
    QString category = "-----";
    bool fixed = true;
    bool automatic = true;
    bool onRegistration = false;
    int saleType = 2;
    QString motive = "MOTIVO";
};

/// A counter in a café with an open till: its catalogue, its customers and the sale window, worked by hand and
/// keyboard. No receipt is asked for unless a test does.
class SaleCounter
{
public:
    explicit SaleCounter(const QLocale &region = brazil);

    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    void add(const Product &product);
    void add(const Rule &rule);
    void addCustomer(const QString &name, const QString &nick, const QString &group = "NORMAL",
                     const QString &photo = "-----");
    /// Three products at ten each and one customer.
    void stockUp();

    void open();
    Form &window() { return loadedWindow("frmvenda"); }
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    /// What a label, a box or a combo shows.
    QString shown(const QString &name);
    bool ticked(const QString &name);
    void press(const QString &name) { click(window(), name); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }
    void clear(const QString &name) { replaceText(at(name), {}); }
    /// Comes in from the clipboard, past what filters keys.
    void paste(const QString &name, const QString &text);
    void put(const QString &product, const QString &quantity = "1");
    /// Lines of the cart as "description|quantity|value".
    QStringList cart();

    /// The next box is the information box with the text of that key.
    void expectNotice(const QString &key, const Attendant::Action &meanwhile = {});
    void expectQuestion(const QString &text, int answer = vbYes, const Attendant::Action &meanwhile = {});
    /// Pays with Enter in the box; question and success are expected.
    void sell(const QString &amount, const QString &question);
    /// Fields of the lines sold so far, separated by "|".
    QStringList sold(const QString &fields);
    QString stock(const QString &description);
};
