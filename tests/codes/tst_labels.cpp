#include "codes/AllCodes.h"
#include "codes/CodeLabel.h"
#include "codes/LabelSheet.h"
#include "platform/window/Forms.h"
#include "tests/support/Attendant.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/PdfBarcodes.h"
#include "tests/support/PdfText.h"
#include "tests/support/TestCafe.h"

#include <QComboBox>
#include <QTest>

namespace {
constexpr int modulo = 18;
constexpr double altura = 700;
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
} // namespace

/// Labels on paper, read back as a scanner reads them, and the window that asks for their place.
class tst_labels : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_cafe.start(); }

    void isReadAtEachPlace()
    {
        const std::tuple<QString, QStringList, decltype(&Codigo_39), QString> sheets[] = {
            {"128", {" !\"#$%&'()*+", ",-./01234567", "89:;<=>?@ABC"}, Codigo_128, "CODE-128:%1"},
            {"128", {"DEFGHIJKLMNO", "PQRSTUVWXYZ[", "\\]^_`abcdefg"}, Codigo_128, "CODE-128:%1"},
            {"128", {"hijkmnopqrst", "uvwxyz{|}~", code}, Codigo_128, "CODE-128:%1"},
            {"39", {"cafe012", "bdghijk", "lmnopqr"}, Codigo_39, "CODE-39:%1"},
            {"39", {"3456789", "stuvwxy", "Z-. $/+"}, Codigo_39, "CODE-39:%1"},
            {"39", {"%", "42", "7"}, Codigo_39, "CODE-39:%1"},
            {"2/5", {"123456789012", "0987654321", "60718293045"}, Codigo_2de5, "I2/5:%1"},
            {"Codabar", {"123456789", "0-$:/.+42", "777-777/+"}, Codigo_Codabar, "Codabar:A%1A"},
        };
        for (const auto &[tipo, textos, encode, reading] : sheets)
            for (const auto &[index, coluna, linha] : {std::tuple(0, 1, 1), {1, 2, 5}, {2, 3, 10}}) {
                QString shown = tipo == "128" ? textos[index] : textos[index].toUpper();
                if (tipo == "2/5" && shown.size() % 2 != 0)
                    shown.prepend('0');
                const QString file = print(tipo, {textos[index]}, linha, coluna);
                QCOMPARE(readAt(file, placeOf(encode(shown), coluna, linha)), reading.arg(shown));
                QCOMPARE(pdfLines(file).join(' ').simplified(), shown.simplified());
            }
    }

    void leavesOutWhatIsNoDigitAndTheLowerCaseL()
    {
        // In the check character an L counts as position, not as value: "l" checks as "!", in "lA" the A counts twice.
        const auto bars = [](QChar character) { return Codigo_128(character).mid(6, 6); };
        QCOMPARE(Codigo_128("l"), Codigo_128({}).first(6) + bars('!') + Codigo_128({}).last(7));
        QCOMPARE(Codigo_128("lA").chopped(7).right(6), bars(QChar((104 + 2 * 33) % 103 + ' ')));
        // The odd digit out has no spaces.
        QCOMPARE(Codigo_2de5("1A23"), Codigo_2de5("12").chopped(3) + "33111" + "311");
    }

    void goesOnWithTheNextSheet()
    {
        const QString file = print("128", QString("A B C D E F G H I J K L M").split(' '), 10, 2);
        QCOMPARE(pdfLines(file).join(' ').simplified(), "B C D E F G H I J A K L M");
        QCOMPARE(readAt(file, placeOf(Codigo_128("M"), 1, 2), 2), "CODE-128:M");
    }

    void printsOnlyWhatWasAskedFor()
    {
        for (const QString untick : {"chkcodigo", "chkbarras"}) {
            label([&](Form &window) {
                click(window, untick);
                pickEntry(control<QComboBox>(window, "cmbcoluna"), "2");
                pickEntry(control<QComboBox>(window, "cmblinha"), "10");
                pressKey(control(window, "cmblinha"), Qt::Key_Return);
            });
            const QString file = m_machine.openedDocuments.value(0);
            QCOMPARE(readAt(file, placeOf(Codigo_128(code), 2, 10)), untick == "chkbarras" ? "" : "CODE-128:" + code);
            QCOMPARE(pdfLines(file).join(' ').contains(code), untick != "chkcodigo");
        }

        Attendant attendant;
        attendant.expectNotice("Escolha o que deseja imprimir: o número, o código de barra ou ambos.", "Aviso");
        label([](Form &window) {
            click(window, "chkcodigo");
            click(window, "chkbarras");
            click(window, "cmdok");
            const bool stays = window.isLoaded() && control(window, "chkcodigo").hasFocus();
            click(window, "cmdcancelar");
            QVERIFY(stays);
        });
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
        m_machine.whileAsleep = [&] {
            QCoreApplication::processEvents();
            attendant(loadedWindow("frmetiquetas"));
        };
        m_machine.openedDocuments.clear();
        Form opener;
        printCodeLabel(opener, code);
        QVERIFY(Forms::loaded().isEmpty() && opener.cursor().shape() == Qt::ArrowCursor);
    }

    FakeMachine m_machine;
    TestCafe m_cafe;
};

STORY_MAIN(tst_labels)
#include "tst_labels.moc"
