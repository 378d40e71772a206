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
        for (int column = 0; column < 98; ++column) {
            printer.setCurrentX(column);
            printer.setCurrentY(60);
            printer.Print("=");
        }
        printer.setCurrentX(33);
        printer.setCurrentY(30);
        printer.Print("MEIO");
        printer.Print("após");
        // Its file's name would be too long, in bytes.
        printer.setDocumentName(QString(120, u'€'));
        printer.EndDoc();

        const auto found = places(onlyDocument());
        QCOMPARE(found.size(), 3);
        QCOMPARE(m_opened, QStringList(onlyDocument()));
        // A column is 6 points wide and a line 12 high.
        const QPointF rule = found.value(QString(98, '='));
        QVERIFY(qAbs(rule.x()) < 0.1 && qAbs(rule.y() - 60 * 12) < 0.1);
        QVERIFY(qAbs(found.value("MEIO").x() - 33 * 6) < 0.1);
        QVERIFY(qAbs(found.value("MEIO").y() - 30 * 12) < 0.1);
        QVERIFY(qAbs(found.value("após").x()) < 0.1);
        QVERIFY(qAbs(found.value("após").y() - 31 * 12) < 0.1);
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
    QString onlyDocument() const
    {
        const QDir folder(m_folder->filePath("documents/printouts"));
        const QStringList names = folder.entryList(QDir::Files);
        return names.size() == 1 ? folder.filePath(names.first()) : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_opened;
};

QTEST_MAIN(TestPrinter)
#include "tst_printer.moc"
