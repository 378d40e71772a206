#include "platform/window/Forms.h"

#include <QTest>

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
};

} // namespace

class TestForms : public QObject
{
    Q_OBJECT

private slots:
    void activatesOnlyWhenTheProgramsWindowChanges()
    {
        Counter &counter = Forms::use<Counter>();
        const auto show = [](Form &form) {
            form.Show();
            QVERIFY(QTest::qWaitForWindowActive(&form));
        };
        show(counter);
        QWidget elsewhere;
        elsewhere.show();
        elsewhere.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
        show(counter);
        QCOMPARE(std::exchange(told, {}), QStringList({"counter load", "counter activate"}));

        Customers &customers = Forms::use<Customers>();
        show(customers);
        customers.Unload();
        show(counter);
        QCOMPARE(std::exchange(told, {}), QStringList({"customers load", "customers activate", "customers unload",
                                                       "customers freed", "counter activate"}));
        counter.Unload();
    }
};

QTEST_MAIN(TestForms)
#include "tst_forms.moc"
