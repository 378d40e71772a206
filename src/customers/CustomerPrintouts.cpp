#include "customers/CustomerPrintouts.h"

#include "customers/CustomerColumns.h"
#include "customers/CustomerTexts.h"
#include "platform/print/Printer.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Prompts.h"
#include "reports/ListReport.h"

namespace {
constexpr int columns = 98;
constexpr int nameWidth = 62;
constexpr int nickWidth = 42;
constexpr int remarkWidth = 32;

QString text(const QString &key)
{
    return customerTexts.text(key);
}

/// A text that is too long for its column ends the report. It stays.
ListReport reportOf(const FlexGrid &grid)
{
    return {.grid = grid,
            .trap = ReportTrap::Ends,
            .columns = columns,
            .lines = {{{text("DispositivoSaida4"), CustomerColumn::Codigo}},
                      {{text("DispositivoSaida5"), CustomerColumn::Name, nameWidth},
                       {text("DispositivoSaida6"), CustomerColumn::BirthDate}},
                      {{text("DispositivoSaida7"), CustomerColumn::Nick, nickWidth},
                       {text("DispositivoSaida8"), CustomerColumn::Group}},
                      {{text("DispositivoSaida9"), CustomerColumn::Note, remarkWidth},
                       {text("DispositivoSaida10"), CustomerColumn::Note}},
                      {{text("DispositivoSaida11"), CustomerColumn::Authorised}},
                      {{reportRule(columns)}}}};
}
} // namespace

void printCustomers(const FlexGrid &tab_clientes, int TotalClientes)
{
    if (!customerTexts.confirms("MsgBox15", "MsgBox15_2", vbQuestion))
        return;
    if (TotalClientes == 0)
        return customerTexts.notice("MsgBox16", "MsgBox13_2");

    PrintedList list{reportOf(tab_clientes)};
    list.documentName = text("DispositivoSaida1");
    list.heading = text("DispositivoSaida1") + text("DispositivoSaida1_2");
    // A number of one digit begins at tab 95; more digits move it to the left, where the sheet has room for them.
    list.numberEnd = 99;
    // Pages are counted in a byte: a longer list ends there. It stays.
    list.lastPage = 255;
    list.linesPerEntry = 7;
    list.close = [](int counter, Printer &printer) {
        constexpr int pageEnd = 60;
        if (counter < pageEnd)
            printer.Print(text("DispositivoSaida12"));
    };
    printList(list);
}

void saveCustomers(const FlexGrid &tab_clientes, int TotalClientes)
{
    if (TotalClientes == 0)
        return customerTexts.notice("MsgBox25", "MsgBox13_2");
    const QString file = chooseListFile(customerTexts, "MsgBox23", "MsgBox23_2");
    if (file.isEmpty())
        return;

    SavedList list{reportOf(tab_clientes)};
    list.lines.append({{" "}});
    list.heading = QStringList{text("DispositivoSaida13"), text("DispositivoSaida14")};
    list.dateLabel = text("DispositivoSaida15");
    list.closing =
        QStringList{QString::number(TotalClientes) + customerTexts.loaded(TotalClientes == 1 ? "String5" : "String6")};
    if (saveList(file, list))
        customerTexts.notice("MsgBox24", "MsgBox24_2");
}
