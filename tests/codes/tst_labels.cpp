#include "codes/AllCodes.h"
#include "codes/CodeLabel.h"
#include "codes/LabelSheet.h"
#include "configuration/Globais.h"
#include "tests/support/PdfBarcodes.h"
#include "tests/support/PdfText.h"
#include "tests/support/PrintSystem.h"
#include "tests/support/TestDesk.h"

#include <QComboBox>
#include <QLabel>
#include <QScopeGuard>

#include <random>

namespace {
constexpr int modulo = 18;
constexpr double altura = 700;
const QString code = "000000000042";

/// A kind of barcode, and texts that fit the sheet's columns and that readers take: they refuse short ones of some
/// kinds.
struct Kind
{
    QString tipo;
    QString alphabet;
    int fewest, most;
    QString reading;
    decltype(&Codigo_39) encode;
};

/// All but the lower-case L, which has no bars.
QString printable()
{
    QString all;
    for (char16_t character = ' '; character <= '~'; ++character)
        all += character;
    return all.remove('l');
}

const Kind kinds[] = {
    {"128", printable(), 3, 12, "CODE-128:%1", Codigo_128},
    {"39", "0123456789abcdefghijklmnopqrstuvwxyzABCXYZ-. $/+%", 1, 7, "CODE-39:%1", Codigo_39},
    {"2/5", "0123456789", 6, 16, "I2/5:%1", Codigo_2de5},
    {"Codabar", "0123456789-$:/.+", 4, 9, "Codabar:A%1A", Codigo_Codabar},
};
constexpr int sheets = 10;
constexpr int labelsOnSheet = 30;

/// Texts for so many sheets; all on a sheet are equally long, so that its columns lie where they are reckoned here.
QStringList randomTexts(const Kind &kind)
{
    std::mt19937 random(1); // NOLINT(cert-msc*): every run prints the same labels
    QStringList textos;
    for (int sheet = 0; sheet < sheets; ++sheet)
        for (int label = 0; label < labelsOnSheet; ++label) {
            QString texto;
            while (texto.size() < kind.fewest + (kind.most - kind.fewest) * sheet / (sheets - 1))
                texto += kind.alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(kind.alphabet.size()))];
            textos += texto;
        }
    return textos;
}

/// As it stands on the label.
QString shown(const Kind &kind, const QString &texto)
{
    if (kind.tipo == "2/5")
        return texto.size() % 2 != 0 ? '0' + texto : texto;
    return kind.tipo == "128" ? texto : texto.toUpper();
}

/// Where a label stands with the blank beside it, in twips.
QRectF placeOf(const QString &pattern, int coluna, int linha)
{
    double width = 0;
    for (qsizetype element = 0; element < pattern.size(); ++element)
        width += pattern[element].digitValue() * modulo * (element % 2 == 0 ? 1 : 1.3);
    const double across = double(pattern.size()) * modulo * 2.38;
    const QRectF bars(modulo * 8 + (coluna - 1) * across, modulo * 46 + (linha - 1) * altura * 2.07, width, altura);
    return bars.adjusted(-140, -100, 140, 100);
}

/// How many of the labels on those sheets are read where they belong.
int labelsRead(const Kind &kind, const QStringList &textos, const QString &file, const Rendering &rendering)
{
    const DrawnPages pages(file, rendering);
    int read = 0;
    for (int label = 0; label < textos.size(); ++label) {
        const QString text = shown(kind, textos[label]);
        const int place = label % labelsOnSheet;
        const QRectF part = placeOf(kind.encode(text), place / 10 + 1, place % 10 + 1);
        if (pages.barcodes(label / labelsOnSheet + 1, part) == QStringList(kind.reading.arg(text)))
            ++read;
    }
    // The table in docs/labels.md is made of these lines.
    qInfo("| %s | %d | `%s` | %d of %d |", qPrintable(kind.tipo), rendering.dotsPerInch, qPrintable(rendering.command),
          read, int(textos.size()));
    return read;
}

/// What a reader finds on a label of Code 128.
QString readAt(const QString &file, const QString &texto, int coluna, int linha, int page = 1)
{
    return DrawnPages(file, inWholeDots(300)).barcodes(page, placeOf(Codigo_128(texto), coluna, linha)).join(", ");
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
        for (const Kind &kind : kinds) {
            const QStringList textos = randomTexts(kind);
            const QString file = print(kind.tipo, textos, 1, 1);
            for (const Rendering &rendering : {inWholeDots(300), inWholeDots(600), softened(300)})
                QCOMPARE(labelsRead(kind, textos, file, rendering), textos.size());
            // Nobody knows on which printer a file ends: most kinds lose labels at 203 dots to the inch.
            const int readAt203 = labelsRead(kind, textos, file, inWholeDots(203));
            QVERIFY(kind.tipo != "2/5" || readAt203 == textos.size());
        }
    }

    void isReadInTheDotsOfThePrinter()
    {
        const FakeMachine machine;
        PrintSystem system;
        for (const int dotsPerInch : {203, 300}) {
            const QString queue = QString("etiquetas%1").arg(dotsPerInch);
            system.add(queue, 0, dotsPerInch);
            Printer::current().setDeviceName(queue);
            for (const Kind &kind : kinds) {
                const QStringList textos = randomTexts(kind);
                Imprimir_Barras({kind.tipo, modulo, altura, textos, true, true, 1, 1});
                Printer::current().EndDoc();
                QCOMPARE(labelsRead(kind, textos, system.nextPrintout(), inWholeDots(dotsPerInch)), textos.size());
            }
        }
        Printer::current().setDeviceName({});
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
        QCOMPARE(readAt(file, "M", 1, 2, 2), "CODE-128:M");
    }

    void saysWhenNoReaderTakesTheCode()
    {
        const QString missing = "Ao código de barra faltam caracteres deste código: um leitor não o lê, ou lê outro.";
        const QString translated =
            "The barcode lacks characters of this code: a scanner does not read it, or reads another one.";
        // A language without this line keeps the window's own.
        for (const auto &[language, shownCode, line] :
             {std::tuple<QString, QString, QString>("PORTUGUES.LNG", code, ""),
              {"INGLES.LNG", "casal", translated},
              {"FRANCES.LNG", "CAFÉ", missing}}) {
            const auto back = qScopeGuard([before = NomeIdioma] { NomeIdioma = before; });
            NomeIdioma = language;
            QString seen;
            label(shownCode, [&seen](Form &window) {
                const auto &lblleitura = control<QLabel>(window, "lblleitura");
                seen = lblleitura.isVisible() ? lblleitura.text() : QString();
                click(window, "cmdcancelar");
            });
            QCOMPARE(seen, line);
        }
    }

    void printsOnlyWhatWasAskedFor()
    {
        for (const QString untick : {"chkcodigo", "chkbarras"}) {
            label(code, [&](Form &window) {
                click(window, untick);
                pickEntry(control<QComboBox>(window, "cmbcoluna"), "2");
                pickEntry(control<QComboBox>(window, "cmblinha"), "10");
                pressKey(control(window, "cmblinha"), Qt::Key_Return);
            });
            const QString file = m_machine.openedDocuments.value(0);
            QCOMPARE(readAt(file, code, 2, 10), untick == "chkbarras" ? "" : "CODE-128:" + code);
            QCOMPARE(pdfLines(file).join(' ').contains(code), untick != "chkcodigo");
        }

        Attendant attendant;
        attendant.expectNotice("Escolha o que deseja imprimir: o número, o código de barra ou ambos.", "Aviso");
        label(code, [](Form &window) {
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
    void label(const QString &shownCode, const std::function<void(Form &)> &attendant)
    {
        m_machine.whileAsleep = [&] {
            QCoreApplication::processEvents();
            attendant(loadedWindow("frmetiquetas"));
        };
        m_machine.openedDocuments.clear();
        Form opener;
        printCodeLabel(opener, shownCode);
        QVERIFY(Forms::loaded().isEmpty() && opener.cursor().shape() == Qt::ArrowCursor);
    }

    FakeMachine m_machine;
    TestCafe m_cafe;
};

STORY_MAIN(tst_labels)
#include "tst_labels.moc"
