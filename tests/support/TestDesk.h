#pragma once

#include "platform/window/Forms.h"
#include "tests/support/Desk.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

/// A window worked by hand and keyboard, in a café of a test's own. The till is open in period 7, and ANA LIMA of the
/// group VIP is customer 1.
class TestDesk : public Desk
{
public:
    FakeMachine machine;
    TestCafe cafe;
    Attendant attendant;

    /// Makes a window, or takes the one that there is.
    template <typename Window>
    static Form &use()
    {
        return Forms::use<Window>();
    }

    /// Adds a plain product, customer or category, or a fixed, automatic rule on the sales of products to all;
    /// `changes` are the fields that differ, the number among them.
    void add(const QString &table, const QString &changes);
    void change(const QString &table, const QString &changes) { cafe.execute("Update " + table + " Set " + changes); }

    /// Opens the window anew.
    void open(const Place &where = Place::current());
    bool isOpen() const;

    /// Fields of a table, by itself the window's, in the order of the numbers and with "|" between them.
    QStringList stored(const QString &fields, const QString &table = {});

protected:
    /// `make` makes the window.
    TestDesk(const Names &names, Form &(*make)(), const QLocale &region = brazil, const CafeOptions &options = {});

private:
    Form &(*m_make)();
};
