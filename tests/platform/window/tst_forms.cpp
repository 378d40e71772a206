#include "platform/window/Forms.h"

#include <QTest>
#include <QTimer>

namespace {

QStringList told;

class Window : public Form
{
    Q_OBJECT

public:
    ~Window() override { told << Name() + " freed"; }

protected:
    void Form_Load() override { told << Name() + " load"; }
    void Form_Activate() override { told << Name() + " activate"; }
    void Form_Unload() override { told << Name() + " unload"; }
};

class Counter : public Window
{
    Q_OBJECT

public:
    Counter() { setObjectName("counter"); }
};

class Customers : public Window
{
    Q_OBJECT

public:
    Customers() { setObjectName("customers"); }

    /// As a window waits for another: its own memory is read after each turn.
    void waitFor(const Form *form)
    {
        while (Forms::loaded().contains(form))
            DoEvents();
        told << Name() + " goes on";
    }
};

QStringList takeTold()
{
    return std::exchange(told, {});
}

} // namespace

class TestForms : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        for (Form *form : Forms::loaded())
            form->Unload();
        QCoreApplication::processEvents();
        told.clear();
    }

    void activatesOnlyWhenTheProgramsWindowChanges()
    {
        Counter &counter = Forms::use<Counter>();
        counter.Show();
        QVERIFY(QTest::qWaitForWindowActive(&counter));
        QWidget elsewhere;
        elsewhere.show();
        elsewhere.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        counter.Show();
        QVERIFY(QTest::qWaitForWindowActive(&counter));
        QCOMPARE(takeTold(), QStringList({"counter load", "counter activate"}));

        Customers &customers = Forms::use<Customers>();
        customers.Show();
        QVERIFY(QTest::qWaitForWindowActive(&customers));
        customers.Unload();
        counter.Show();
        QVERIFY(QTest::qWaitForWindowActive(&counter));
        QCOMPARE(takeTold(), QStringList({"customers load", "customers activate", "customers unload", "customers freed",
                                          "counter activate"}));
    }

    void keepsAWindowWhoseRoutineStillWaits()
    {
        Counter &counter = Forms::use<Counter>();
        Customers &customers = Forms::use<Customers>();
        customers.Show();
        told.clear();
        QTimer::singleShot(0, &customers, &QWidget::close);
        QTimer::singleShot(30, &counter, &QWidget::close);
        QTimer::singleShot(0, [&] { customers.waitFor(&counter); });
        QTRY_COMPARE(told.size(), 5);
        QCOMPARE(takeTold(), QStringList({"customers unload", "counter unload", "customers goes on", "customers freed",
                                          "counter freed"}));
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
