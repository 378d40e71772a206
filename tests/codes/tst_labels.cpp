#include "codes/AllCodes.h"
#include "codes/CodeLabel.h"
#include "codes/LabelSheet.h"
#include "codes/frmetiquetas.h"
#include "platform/window/Forms.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/PdfBarcodes.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

#include <QCheckBox>
#include <QTest>

namespace {
constexpr int modulo = 18;
constexpr double altura = 700;
using Encoder = QString (*)(const QString &);
const QString code = "000000000042";

/// Where a label's bars stand, in twips.
QRectF placeOf(const QString &pattern, int coluna, int linha)
{
    double width = 0;
    for (qsizetype element = 0; element < pattern.size(); ++element)
        width += pattern[element].digitValue() * modulo * (element % 2 == 0 ? 1 : 1.3);
    const double across = double(pattern.size()) * modulo * 2.38;
    return {modulo * 8 + (coluna - 1) * across, modulo * 46 + (linha - 1) * altura * 2.07, width, altura};
}

/// What a reader finds on a label, with a margin around it.
QString readAt(const QString &file, const QRectF &place, int page = 1)
{
    return pdfBarcodes(file, page, place.adjusted(-140, -100, 140, 100)).join(", ");
}

/// The box around everything dark, in twips.
QRectF inkOn(const QString &file)
{
    const QImage picture = pdfPicture(file);
    QRect ink;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (qGray(picture.pixel(x, y)) < 128)
                ink |= QRect(x, y, 1, 1);
    constexpr double twipsPerDot = 1440.0 / 300;
    return {QPointF(ink.topLeft()) * twipsPerDot, QSizeF(ink.size()) * twipsPerDot};
}
} // namespace

/// Labels on paper, read back as a scanner reads them, and the window that asks for their place.
class tst_labels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_cafe.start(); }

    void isReadAtEachPlace_data()
    {
        QTest::addColumn<QString>("tipo");
        QTest::addColumn<QStringList>("textos");
        QTest::addColumn<Encoder>("encode");
        QTest::addColumn<QString>("reading");
        const auto row = [](const char *tipo, const QStringList &textos, Encoder encode, const char *reading) {
            QTest::addRow("%s %s", tipo, qPrintable(textos[0]))
                << QString(tipo) << textos << encode << QString(reading);
        };
        row("128", {" !\"#$%&'()*+", ",-./01234567", "89:;<=>?@ABC"}, Codigo_128, "CODE-128:%1");
        row("128", {"DEFGHIJKLMNO", "PQRSTUVWXYZ[", "\\]^_`abcdefg"}, Codigo_128, "CODE-128:%1");
        row("128", {"hijkmnopqrst", "uvwxyz{|}~", code}, Codigo_128, "CODE-128:%1");
        row("39", {"cafe 42", "XYZ-./+", "MNOPQ%$"}, Codigo_39, "CODE-39:%1");
        row("2/5", {"123456789012", "0987654321", "60718293045"}, Codigo_2de5, "I2/5:%1");
        row("Codabar", {"123456789", "0-$:/.+42", "777-777/+"}, Codigo_Codabar, "Codabar:A%1A");
    }

    void isReadAtEachPlace()
    {
        QFETCH(const QString, tipo);
        QFETCH(const QStringList, textos);
        QFETCH(const Encoder, encode);
        QFETCH(const QString, reading);
        for (const auto &[index, coluna, linha] : {std::tuple(0, 1, 1), {1, 2, 5}, {2, 3, 10}}) {
            QString shown = tipo == "128" ? textos[index] : textos[index].toUpper();
            if (tipo == "2/5" && shown.size() % 2 != 0)
                shown.prepend('0');
            const QString file = print(tipo, {textos[index]}, linha, coluna);
            QCOMPARE(readAt(file, placeOf(encode(shown), coluna, linha)), reading.arg(shown));
            QCOMPARE(pdfLines(file).join(' ').simplified(), shown.simplified());
        }
    }

    void goesOnWithTheNextSheet()
    {
        QStringList textos;
        for (int number = 1001; number <= 1013; ++number)
            textos += QString::number(number);
        const QString file = print("128", textos, 10, 2);
        const QString pattern = Codigo_128(textos[0]);
        QCOMPARE(pdfLines(file).join(' ').simplified(),
                 "1002 1003 1004 1005 1006 1007 1008 1009 1010 1001 1011 1012 1013");
        QCOMPARE(readAt(file, placeOf(pattern, 2, 10)), "CODE-128:1001");
        QCOMPARE(readAt(file, placeOf(pattern, 3, 10)), "CODE-128:1011");
        QCOMPARE(readAt(file, placeOf(pattern, 1, 2), 2), "CODE-128:1013");
    }

    void keepsItsOddities()
    {
        const QString many = "123456789012345678901234";
        // Cut only where it steps over used labels.
        QCOMPARE(pdfLines(print("2/5", {many}, 1, 1)).first().trimmed(), many);
        const QString cut = "I2/5:" + many.left(12);
        const QString pattern = Codigo_2de5(many.left(12));
        QCOMPARE(readAt(print("2/5", {many}, 2, 1), placeOf(pattern, 1, 2)), cut);
        // An unknown code draws the bars of the label before.
        QCOMPARE(readAt(print("EAN", {"7"}, 1, 1), placeOf(pattern, 1, 1)), cut);
        // A place beyond the sheet: one sheet without ink.
        QVERIFY(inkOn(print("128", {"1", "2"}, 11, 1)).isEmpty());
    }

    void printsWhatWasAskedFor_data()
    {
        QTest::addColumn<QString>("untick");
        QTest::newRow("both") << QString();
        QTest::newRow("bars only") << "chkcodigo";
        QTest::newRow("number only") << "chkbarras";
    }

    void printsWhatWasAskedFor()
    {
        QFETCH(const QString, untick);
        label([&](Form &window) {
            auto &column = control<QComboBox>(window, "cmbcoluna");
            QVERIFY(column.hasFocus() && window.windowFlags() & Qt::WindowStaysOnTopHint);
            if (!untick.isEmpty())
                click(window, untick);
            for (const Qt::Key key : {Qt::Key_3, Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Down, Qt::Key_Return})
                pressKey(column, key);
            auto &row = control<QComboBox>(window, "cmblinha");
            QVERIFY(row.hasFocus());
            pickEntry(row, "10");
            pressKey(row, Qt::Key_Return);
        });
        const QString file = m_machine.printouts().value(0);
        QVERIFY(file.contains("Etiquetas"));
        const QRectF place = placeOf(Codigo_128(code), 2, 10);
        QCOMPARE(readAt(file, place), untick == "chkbarras" ? "" : "CODE-128:" + code);
        QCOMPARE(pdfLines(file).join(' ').contains(code), untick != "chkcodigo");
        const QRectF ink = inkOn(file);
        if (untick == "chkcodigo")
            QVERIFY((ink.topLeft() - place.topLeft()).manhattanLength() < 10 &&
                    (ink.bottomRight() - place.bottomRight()).manhattanLength() < 10);
        else if (untick == "chkbarras")
            QVERIFY(ink.top() > place.bottom() && qAbs(ink.left() - place.left()) < 40);
    }

    void printsNothingWithoutConsent()
    {
        Attendant attendant;
        attendant.expectNotice("Escolha o que deseja imprimir: o número, o código de barra ou ambos.", "Aviso");
        label([](Form &window) {
            click(window, "chkcodigo");
            click(window, "chkbarras");
            click(window, "cmdok");
            QVERIFY(window.isLoaded() && control(window, "chkcodigo").hasFocus());
            click(window, "cmdcancelar");
        });
        m_machine.breakPrinter();
        label([](Form &window) { click(window, "cmdok"); });
        QVERIFY(m_machine.openedDocuments.isEmpty());
    }

private:
    /// Prints with numbers and bars, and answers the one new file.
    QString print(const QString &tipo, const QStringList &textos, int linha, int coluna)
    {
        Imprimir_Barras({tipo, modulo, altura, textos, true, true, linha, coluna});
        Printer::current().EndDoc();
        return m_machine.openedDocuments.last();
    }

    /// Prints a code's label while the attendant works the window.
    void label(const std::function<void(Form &)> &attendant)
    {
        for (const QString &file : m_machine.printouts())
            QFile::remove(file);
        m_machine.whileAsleep = [&] {
            QCoreApplication::processEvents();
            Form &window = loadedWindow("frmetiquetas");
            attendant(window);
            // A failed step must not leave the program waiting.
            if (QTest::currentTestFailed())
                window.Unload();
        };
        m_machine.openedDocuments.clear();
        Form opener;
        printCodeLabel(opener, code);
        QVERIFY(Forms::loaded().isEmpty() && opener.cursor().shape() == Qt::ArrowCursor);
    }

    FakeMachine m_machine;
    TestCafe m_cafe;
};

QTEST_MAIN(tst_labels)
#include "tst_labels.moc"
