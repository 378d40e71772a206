#include "platform/base/Err.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"

#include <QProcess>
#include <QTest>
#include <QTimer>

#include <cstdio>

namespace {

class Standing : public PromptService
{
public:
    int message(const QString &text, int style, const QString &title) override
    {
        std::printf("%s|%d|%s\n", qPrintable(title), style, qPrintable(text));
        std::fflush(stdout);
        return vbOK;
    }
    QString openFile(const FileDialog &) override { return {}; }
    QString saveFile(const FileDialog &) override { return {}; }
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
