#include "platform/base/Err.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "tests/support/Willing.h"

#include <QProcess>
#include <QTest>
#include <QTimer>

#include <cstdio>

namespace {

class Standing : public Willing
{
public:
    int message(const QString &text, int style, const QString &title) override
    {
        std::printf("%s|%d|%s\n", qPrintable(title), style, qPrintable(text));
        std::fflush(stdout);
        return vbOK;
    }
};

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

/// The child of the test below: fails inside a routine that another one waits for.
int failingProgram(int &argc, char **argv)
{
    Application application(argc, argv);
    Standing prompts;
    PromptService::use(&prompts);
    const auto fail = [] { throw RunTimeError(ErrorNumber::BadSql, "Syntax error"); };
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] { OnErrorResumeNext<ErrorNumber::Overflow>(fail); });
        for (int turn = 0; turn < 5; ++turn)
            DoEvents();
        std::puts("the waiting routine went on");
        std::fflush(stdout);
    });
    return application.exec();
}

} // namespace

class TestApplication : public QObject
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

    void failureThatNoRoutineTrapsEndsTheProgram()
    {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {"--fail"});
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 1);
        QCOMPARE(QString::fromUtf8(program.readAllStandardOutput()),
                 "Morvelane – Módulo Auxiliar|16|Erro em tempo de execução '3075':\n\nSyntax error\n");
    }
};

int main(int argc, char **argv)
{
    if (argc > 1 && qstrcmp(argv[1], "--fail") == 0)
        return failingProgram(argc, argv);
    Application application(argc, argv);
    TestApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
