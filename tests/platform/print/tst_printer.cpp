#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/print/Printer.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return process.readAllStandardOutput();
}

/// Upper left corners of the words of a printout, in points, by word.
QMultiMap<QString, QPointF> places(const QString &file)
{
    static const QRegularExpression word(R"re(<word xMin="([-\d.]+)" yMin="([-\d.]+)"[^>]*>([^<]*)</word>)re");
    QMultiMap<QString, QPointF> found;
    for (auto each = word.globalMatch(QString::fromUtf8(run("pdftotext", {"-bbox", file, "-"}))); each.hasNext();) {
        const auto match = each.next();
        found.insert(match.captured(3), {match.captured(1).toDouble(), match.captured(2).toDouble()});
    }
    return found;
}

} // namespace

class TestPrinter : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_opened.clear();
        Machine machine;
        machine.now = [] { return QDateTime({2024, 2, 29}, {23, 59, 1}); };
        machine.printoutFolder = [this] { return m_folder->filePath("documents/printouts"); };
        machine.openDocument = [this](const QString &path) { m_opened << path; };
        Machine::current() = machine;
        Printer::current() = Printer();
    }

    void fillsASheetOfCharacters()
    {
        Printer &printer = Printer::current();
        printer.setScaleMode(ScaleMode::Characters);
        for (int line : {0, 29, 60}) {
            for (int column = 0; column < 98; ++column) {
                printer.setCurrentX(column);
                printer.setCurrentY(line);
                printer.Print("=");
            }
        }
        printer.setCurrentX(33);
        printer.setCurrentY(30);
        printer.Print("MEIO");
        printer.Print("após");
        printer.EndDoc();

        const auto found = places(onlyDocument());
        const QList<QPointF> rules = found.values(QString(98, '='));
        QCOMPARE(rules.size(), 3);
        QCOMPARE(found.size(), 5);
        QCOMPARE(m_opened, QStringList(onlyDocument()));
        // A column is 6 points wide and a line 12 high.
        QList<int> lines;
        for (const QPointF &rule : rules) {
            QVERIFY(qAbs(rule.x()) < 0.1);
            QVERIFY(qAbs(rule.y() / 12 - qRound(rule.y() / 12)) < 0.01);
            lines << qRound(rule.y() / 12);
        }
        std::sort(lines.begin(), lines.end());
        QCOMPARE(lines, QList<int>({0, 29, 60}));
        QVERIFY(qAbs(found.value("MEIO").x() - 33 * 6) < 0.1);
        QVERIFY(qAbs(found.value("MEIO").y() - 30 * 12) < 0.1);
        QVERIFY(qAbs(found.value("após").x()) < 0.1);
        QVERIFY(qAbs(found.value("após").y() - 31 * 12) < 0.1);
    }

    void placesInTwipsOnThePaper()
    {
        Printer &printer = Printer::current();
        printer.setPageSize(15840, 12240);
        printer.setFontSize(16);
        printer.setFontBold(true);
        printer.setCurrentX(1440);
        printer.setCurrentY(2880);
        printer.Print("12345", false);
        printer.Print("678");
        printer.NewPage();
        printer.Print("last");
        printer.EndDoc();

        const auto found = places(onlyDocument());
        QVERIFY(qAbs(found.value("12345678").x() - 72) < 0.1);
        QVERIFY(run("pdffonts", {onlyDocument()}).contains("Bold"));
        const QString info = QString::fromUtf8(run("pdfinfo", {onlyDocument()}));
        QVERIFY2(info.contains(QRegularExpression("Pages: +2\\b")) && info.contains("792 x 612"), qPrintable(info));
    }

    void failingDeviceRaisesAndForgets()
    {
        QFile blocking(m_folder->filePath("documents"));
        QVERIFY(blocking.open(QIODevice::WriteOnly));
        Printer &printer = Printer::current();
        // A folder that can't be made, the system's printer that is gone, a chosen one that is gone.
        for (const auto &[installed, chosen] :
             {std::pair(QStringList(), ""), std::pair(QStringList("Balcão"), ""), std::pair(QStringList(), "Balcão")}) {
            Machine::current().printerNames = [names = installed] { return names; };
            printer.setDeviceName(chosen);
            printer.Print("lost");
            Err::Clear();
            OnErrorResumeNext([&] { printer.EndDoc(); });
            QCOMPARE(Err::Number(), ErrorNumber::PrinterError);
            QVERIFY(OnErrorResumeNext([&] { printer.EndDoc(); }));
        }
        QVERIFY(m_opened.isEmpty());
    }

private:
    QStringList documents() const { return QDir(m_folder->filePath("documents/printouts")).entryList(QDir::Files); }

    QString onlyDocument() const
    {
        const QStringList names = documents();
        return names.size() == 1 ? m_folder->filePath("documents/printouts/" + names.first()) : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_opened;
};

QTEST_MAIN(TestPrinter)
#include "tst_printer.moc"
