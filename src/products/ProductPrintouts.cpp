#include "products/ProductPrintouts.h"

#include "configuration/Globais.h"
#include "platform/print/Printer.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Form.h"
#include "platform/window/Prompts.h"
#include "products/ProductColumns.h"
#include "products/ProductTexts.h"
#include "reports/ListReport.h"

namespace {
constexpr int productReportWidth = 95; ///< characters
// The list never had the last two of its columns: the line that needs them is left out of every block. It stays.
constexpr int dateColumn = ProductColumn::Count;
constexpr int timeColumn = ProductColumn::Count + 1;

ListReport reportOf(const FlexGrid &grid, const QString &minimumKey)
{
    return {.grid = grid,
            .columns = productReportWidth,
            .lines = {{{productTexts.text("DispositivoSaida4"), ProductColumn::Description, 32},
                       {productTexts.text("DispositivoSaida4_2"), ProductColumn::Code},
                       {productTexts.text("DispositivoSaida5"), ProductColumn::Stock, 13},
                       {productTexts.text(minimumKey), ProductColumn::MinimumStock}},
                      // The currency symbol stands before the supplier, not before the price. It stays.
                      {{productTexts.text("DispositivoSaida7"), ProductColumn::Price, 26},
                       {productTexts.text("DispositivoSaida8") + SimboloMoeda + " ", ProductColumn::Supplier}},
                      {{productTexts.text("DispositivoSaida9"), ProductColumn::Barcode, 31},
                       {productTexts.text("DispositivoSaida10"), ProductColumn::Category}},
                      {{productTexts.text("DispositivoSaida11"), dateColumn, 17},
                       {productTexts.text("DispositivoSaida12"), timeColumn}},
                      {{reportRule(productReportWidth)}}}};
}

void print(const FlexGrid &grid, const QString &total)
{
    PrintedList list{reportOf(grid, "DispositivoSaida6")};
    list.documentName = list.heading = productTexts.text("DispositivoSaida1");
    list.numberEnd = productReportWidth;
    list.linesPerEntry = 5;
    list.placedByCounter = true;
    list.close = [&](int counter, Printer &printer) {
        constexpr int lastLine = 60;
        printer.setCurrentY(counter);
        printer.Print(total);
        printer.setCurrentY(lastLine);
        printer.setCurrentX(1);
        printer.Print(productTexts.text("DispositivoSaida13"));
    };
    printList(list);
}
} // namespace

void printProducts(Form &form, const FlexGrid &tab_produtos, int Total_Produtos, const QString &total)
{
    if (!productTexts.confirms("MsgBox18", "MsgBox18_2", vbQuestion))
        return;
    // The hourglass outlives the notice of an empty list, and that stays.
    form.setMousePointer(vbHourglass);
    if (Total_Produtos == 0)
        return productTexts.notice("MsgBox19", "MsgBox19_2");
    print(tab_produtos, total);
    form.setMousePointer(vbDefault);
    // A printer that refused is no reason to stay silent. It stays.
    productTexts.notice("MsgBox20");
}

void saveProducts(const FlexGrid &tab_produtos, const QString &total)
{
    const QString file = chooseListFile(productTexts, "MsgBox26", "MsgBox26_2");
    if (file.isEmpty())
        return;
    if (tab_produtos.Rows() < 2)
        return productTexts.notice("MsgBox28", "MsgBox19_2");

    SavedList list{reportOf(tab_produtos, "DispositivoSaida16")};
    list.heading = QStringList{productTexts.text("DispositivoSaida14")};
    list.dateLabel = productTexts.text("DispositivoSaida15");
    list.closing = QStringList{"", "", total};
    // A file that can't be written is reported too, as its lines fail one by one. That stays.
    saveList(file, list);
    MsgBox(productTexts.text("MsgBox27") + file, vbInformation, productTexts.text("MsgBox27_2"));
}
