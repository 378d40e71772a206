#include "platform/base/Err.h"
#include "platform/window/Application.h"
#include "platform/window/Forms.h"
#include "platform/window/Look.h"
#include "platform/window/Prompts.h"

#include <QPalette>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <cmath>
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
        QTimer::singleShot(0, fail);
        for (int turn = 0; turn < 5; ++turn)
            DoEvents();
        std::puts("the waiting routine went on");
        std::fflush(stdout);
    });
    return application.exec();
}

/// Contrast of two colours, 1 to 21, as the web's accessibility guidelines reckon it.
double contrast(const QColor &one, const QColor &other)
{
    const auto luminance = [](const QColor &colour) {
        const auto linear = [](double part) {
            return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
    };
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
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

    void coloursCanBeRead()
    {
        using Role = QPalette::ColorRole;
        constexpr std::pair<Role, Role> inks[] = {{Role::WindowText, Role::Window},
                                                  {Role::Text, Role::Base},
                                                  {Role::Text, Role::AlternateBase},
                                                  {Role::ButtonText, Role::Button},
                                                  {Role::HighlightedText, Role::Highlight},
                                                  {Role::PlaceholderText, Role::Light},
                                                  {Role::PlaceholderText, Role::Window},
                                                  {Role::PlaceholderText, Role::Base},
                                                  {Role::BrightText, Role::Light},
                                                  {Role::BrightText, Role::Window},
                                                  {Role::Link, Role::Light}};
        for (const bool dark : {false, true}) {
            const QPalette palette = lookPalette(dark);
            for (const auto &[ink, ground] : inks)
                QVERIFY2(contrast(palette.color(ink), palette.color(ground)) >= 4.5,
                         qPrintable(QString("%1 on %2, dark %3").arg(ink).arg(ground).arg(dark)));
        }
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
