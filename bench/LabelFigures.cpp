#include "bench/LabelFigures.h"

#include "bench/Figures.h"
#include "codes/LabelSheet.h"
#include "platform/base/Machine.h"
#include "platform/print/Printer.h"

#include <QPainter>
#include <QPdfWriter>
#include <QScopeGuard>
#include <QTemporaryDir>

namespace {
constexpr int labels = 30;
/// Bars of a Code 128 label with 12 characters.
constexpr int barsOfLabel = 46;

double secondsOfSheet(const QStringList &codes)
{
    return secondsOf([&] {
        Imprimir_Barras({.tipo = "128",
                         .modulo = 18,
                         .altura = 700,
                         .textos = codes,
                         .mostrar_numero = true,
                         .mostrar_barras = true});
        Printer::current().EndDoc();
    });
}

/// The same number of boxes and texts, each where a painter is told to put it.
double secondsOfBareSheet(const QStringList &codes, const QString &file)
{
    return secondsOf([&] {
        QPdfWriter sheet(file);
        sheet.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
        QPainter painter(&sheet);
        QFont font("Courier New");
        font.setFamilies({"Courier New", "Liberation Mono"});
        font.setPointSize(16);
        font.setHintingPreference(QFont::PreferNoHinting);
        painter.setFont(font);
        QList<QRect> bars;
        for (int label = 0; label < labels; ++label) {
            const int x = 120 + label / 10 * 3248;
            const int y = 690 + label % 10 * 1207;
            for (int bar = 0; bar < barsOfLabel; ++bar)
                bars.append(QRect(x + bar * 60, y, 15 + bar % 4 * 15, 583));
            painter.drawText(x, y + 800, codes[label]);
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawRects(bars);
    });
}
} // namespace

void addLabelFigures(FigureTable &table)
{
    const QTemporaryDir folder;
    const Machine usual = Machine::current();
    const auto leave = qScopeGuard([&usual] { Machine::current() = usual; });
    Machine::current().printoutFolder = [&folder] { return folder.path(); };
    Machine::current().printerNames = [] { return QStringList(); };
    Machine::current().defaultPrinterName = [] { return QString(); };
    Machine::current().openDocument = [](const QString &) {};
    QStringList codes;
    for (int label = 0; label < labels; ++label)
        codes += QString("%1").arg(label * 8191, 12, 10, QChar('0'));
    table.add("a sheet of 30 Code 128 labels to PDF",
              ratiosOfPairs([&] { return secondsOfSheet(codes); },
                            [&] { return secondsOfBareSheet(codes, folder.filePath("bare.pdf")); }),
              1.2);
}
