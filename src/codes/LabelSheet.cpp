#include "codes/LabelSheet.h"

#include "codes/AllCodes.h"
#include "codes/BarGrid.h"
#include "configuration/Globais.h"
#include "platform/print/Printer.h"
#include "windows/PageScale.h"

namespace {
constexpr int columns = 3;
constexpr int rows = 10;
/// Left and upper edge of the first label, in modules.
constexpr int leftModules = 8;
constexpr int topModules = 46;
/// From label to label: down in heights of the bars, across in modules to an element.
constexpr double rowHeights = 2.07;
constexpr double modulesPerElement = 2.38;
/// Spaces wider than bars keep the bars apart where the ink runs.
constexpr double spaceStretch = 1.3;
constexpr qsizetype longestText = 12;
constexpr double numberPoints = 16;

QString &Padrao_Barras = Globais::current().Padrao_Barras;

/// Brings the text into the form that the code takes, too.
void encode(const QString &tipo, QString &texto)
{
    if (tipo == "39") {
        texto = texto.toUpper();
        Padrao_Barras = Codigo_39(texto);
    } else if (tipo == "128") {
        Padrao_Barras = Codigo_128(texto);
    } else if (tipo == "2/5") {
        if (texto.size() % 2 != 0)
            texto.prepend('0');
        Padrao_Barras = Codigo_2de5(texto);
    } else if (tipo == "Codabar") {
        texto = texto.toUpper();
        Padrao_Barras = Codigo_Codabar(texto);
    }
}

void drawBars(Printer &printer, QPointF place, const BarGrid &grid, const BarLabels &etiquetas)
{
    place.setX(grid.left(place.x()));
    bool bar = true;
    for (const QChar digit : Padrao_Barras) {
        const double width = grid.width(digit.digitValue() * etiquetas.modulo * (bar ? 1 : spaceStretch));
        if (bar)
            printer.FillBox(QRectF(place, QSizeF(width, etiquetas.altura)).adjusted(grid.trim(), 0, -grid.trim(), 0));
        place.rx() += width;
        bar = !bar;
    }
}

void drawLabel(Printer &printer, QPointF place, const BarGrid &grid, const BarLabels &etiquetas, const QString &texto)
{
    if (etiquetas.mostrar_barras)
        drawBars(printer, place, grid, etiquetas);
    if (etiquetas.mostrar_numero) {
        printer.setCurrentX(place.x());
        printer.setCurrentY(place.y() + etiquetas.altura);
        printer.Print(texto);
    }
}

/// What is still to be printed, whether the label to begin at was reached, and how bars come onto this paper.
struct Progress
{
    QStringList waiting;
    BarGrid grid;
    bool live = false;
};

void drawColumn(Printer &printer, double x, int coluna, const BarLabels &etiquetas, Progress &progress)
{
    double y = topModules * etiquetas.modulo;
    for (int linha = 1; linha <= rows && !progress.waiting.isEmpty(); ++linha) {
        progress.live = progress.live || (linha >= etiquetas.linha && coluna >= etiquetas.coluna);
        QString &texto = progress.waiting.first();
        encode(etiquetas.tipo, texto);
        if (progress.live) {
            drawLabel(printer, {x, y}, progress.grid, etiquetas, texto);
            progress.waiting.removeFirst();
        } else {
            // Only a text that steps over used labels is cut, and that stays.
            texto.truncate(longestText);
        }
        y += etiquetas.altura * rowHeights;
    }
}

void drawSheet(Printer &printer, const BarLabels &etiquetas, Progress &progress)
{
    // Without numbers and bars an empty sheet comes out.
    printer.StartPage();
    double x = leftModules * etiquetas.modulo;
    for (int coluna = 1; coluna <= columns; ++coluna) {
        drawColumn(printer, x, coluna, etiquetas, progress);
        x += static_cast<double>(Padrao_Barras.size()) * etiquetas.modulo * modulesPerElement;
    }
}
} // namespace

void Imprimir_Barras(const BarLabels &etiquetas)
{
    Printer &printer = Printer::current();
    setUpSheet(printer, numberPoints, ScaleMode::Twips);
    printer.setDocumentName("Etiquetas");
    printer.keepScale();
    const int dotsPerInch = etiquetas.mostrar_barras ? printer.deviceDotsPerInch() : 0;
    Progress progress{.waiting = etiquetas.textos, .grid = BarGrid(dotsPerInch)};
    drawSheet(printer, etiquetas, progress);
    // A place that no sheet has is never reached.
    while (progress.live && !progress.waiting.isEmpty()) {
        printer.NewPage();
        drawSheet(printer, etiquetas, progress);
    }
}
