#pragma once

#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// The window of the access codes, opened for ANA LIMA, customer 7 of the group VIP, in a café with an open till. Codes
/// are paid before, and neither receipt nor label is asked for.
class CodeDesk
{
public:
    explicit CodeDesk(const QString &kind = "1");

    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    /// Adds a fixed, automatic rule for codes of everybody; `changes` are the fields that differ.
    void addRule(int code, const QString &changes);
    void open();
    Form &window() { return loadedWindow("frmcodigo_rapido"); }
    bool isOpen() const;
    template <typename Control = QWidget>
    Control &at(const QString &name)
    {
        return control<Control>(window(), name);
    }
    QString shown(const QString &name) { return at(name).property("text").toString(); }
    void type(const QString &name, const QString &text) { replaceText(at(name), text); }
    void press(const QString &name) { click(window(), name); }

    QString text(const QString &key) const;
    void expectNotice(const QString &key) { attendant.expectNotice(text(key), text("MsgBox1_2")); }
    /// The question whether to sell; `reduced` is empty without a discount.
    void expectQuestion(const QString &total, const QString &reduced = {}, int answer = vbYes);
    void expectLinkQuestion(int answer = vbYes);
    /// Confirms and states that it sells.
    void sell(const QString &total, const QString &reduced = {});
    /// All fields of the stored code, the sale and the link, row by row.
    QStringList codes();
    QStringList sales();
    QStringList links();
    /// Confirms and states that it is refused with that text, that focus and nothing stored.
    void refused(const QString &key, const QString &focus = {});
};
