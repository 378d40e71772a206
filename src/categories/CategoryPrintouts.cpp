#include "categories/CategoryPrintouts.h"

#include "categories/CategoryList.h"
#include "categories/CategoryTexts.h"
#include "platform/print/Printer.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Prompts.h"
#include "reports/ListReport.h"

namespace {
constexpr int categoryReportWidth = 95; ///< characters
constexpr int nameWidth = 80;

ListReport reportOf(const FlexGrid &grid, const QString &nameHead, const QString &markHead)
{
    return {.grid = grid,
            .columns = categoryReportWidth,
            .columnHeads = nameHead.leftJustified(nameWidth) + markHead,
            .lines = {{{"", CategoryColumn::Name, nameWidth}, {"", CategoryColumn::Default}}}};
}
} // namespace

void printCategories(const FlexGrid &tab_categorias, const QString &total)
{
    if (!categoryTexts.confirms("MsgBox8", "MsgBox8_2", vbQuestion))
        return;
    if (tab_categorias.Rows() < 2)
        return categoryTexts.notice("MsgBox9", "MsgBox9_2");

    // The mark has no share of anything, but its head has always borne the sign. It stays.
    PrintedList list{reportOf(tab_categorias, categoryTexts.text("DispositivoSaida4"),
                              categoryTexts.text("DispositivoSaida5") + "%")};
    list.documentName = list.heading = categoryTexts.text("DispositivoSaida1");
    list.numberEnd = categoryReportWidth;
    list.linesOfHead = 5;
    list.linesPerEntry = 2;
    list.placedByCounter = true;
    list.close = [&](int counter, Printer &printer) {
        printer.setCurrentY(counter);
        printer.Print(reportRule(categoryReportWidth));
        printer.Print(categoryTexts.text("DispositivoSaida6") + total);
    };
    printList(list);
}

void saveCategories(const FlexGrid &tab_categorias, const QString &total)
{
    if (tab_categorias.Rows() < 2)
        return categoryTexts.notice("MsgBox18", "MsgBox9_2");
    const QString file = chooseListFile(categoryTexts, "MsgBox16", "MsgBox16_2");
    if (file.isEmpty())
        return;

    SavedList list{
        reportOf(tab_categorias, categoryTexts.text("DispositivoSaida9"), categoryTexts.text("DispositivoSaida10"))};
    list.heading = QStringList{categoryTexts.text("DispositivoSaida7")};
    list.dateLabel = categoryTexts.text("DispositivoSaida8");
    list.closing = QStringList{reportRule(categoryReportWidth), total};
    // A file that can't be written is reported as saved too, as its lines fail one by one. That stays.
    saveList(file, list);
    categoryTexts.noticeText(categoryTexts.text("MsgBox17") + categoryTexts.text("MsgBox17_2"));
}
