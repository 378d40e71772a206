#include "customers/CustomerPrintouts.h"

#include "configuration/Arquivos.h"
#include "customers/CustomerColumns.h"
#include "customers/CustomerTexts.h"
#include "platform/text/Space.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Prompts.h"
#include "reports/ListReport.h"

namespace {
constexpr int nameWidth = 62;
constexpr int nickWidth = 42;
constexpr int remarkWidth = 32;

QString text(const QString &key)
{
    return customerTexts.text(key);
}

/// Labels are read once for a report: a file is asked for each.
struct Labels
{
    QString code = text("DispositivoSaida4");
    QString name = text("DispositivoSaida5");
    QString birth = text("DispositivoSaida6");
    QString nick = text("DispositivoSaida7");
    QString group = text("DispositivoSaida8");
    QString remark = text("DispositivoSaida9");
    QString notice = text("DispositivoSaida10");
    QString authorised = text("DispositivoSaida11");
};

/// A text that is too long for its column ends the report. It stays.
QString padded(const QString &field, int width)
{
    return field + Space(width - field.size());
}

ListEntries entriesOf(const FlexGrid &grid)
{
    return {grid.Rows() - 1, [&grid, labels = Labels()](int row, const ReportLine &write) {
                const auto column = [&](int col) { return grid.TextMatrix(row, col); };
                write(labels.code + column(CustomerColumn::Codigo));
                write(labels.name + padded(column(CustomerColumn::Name), nameWidth) + labels.birth +
                      column(CustomerColumn::BirthDate));
                write(labels.nick + padded(column(CustomerColumn::Nick), nickWidth) + labels.group +
                      column(CustomerColumn::Group));
                write(labels.remark + padded(column(CustomerColumn::Note), remarkWidth) + labels.notice +
                      column(CustomerColumn::Note));
                write(labels.authorised + column(CustomerColumn::Authorised));
                write(reportRule);
            }};
}
} // namespace

void imprimirClientes(const FlexGrid &tab_clientes, int TotalClientes)
{
    if (!customerTexts.confirms("MsgBox15", "MsgBox15_2", vbQuestion))
        return;
    if (TotalClientes == 0)
        return customerTexts.notice("MsgBox16", "MsgBox13_2");

    PrintedList list;
    list.documentName = text("DispositivoSaida1");
    list.heading = text("DispositivoSaida1") + text("DispositivoSaida1_2");
    // A number of one digit begins at tab 95; more digits move it to the left, where the sheet has room for them.
    list.numberEnd = 99;
    // Pages are counted in a byte: a longer list ends there. It stays.
    list.lastPage = 255;
    list.linesPerEntry = 7;
    list.entries = entriesOf(tab_clientes);
    list.close = [](int counter, const ReportLine &write) {
        constexpr int pageEnd = 60;
        if (counter < pageEnd)
            write(text("DispositivoSaida12"));
    };
    printList(list);
}

void salvarClientes(const FlexGrid &tab_clientes, int TotalClientes)
{
    if (TotalClientes == 0)
        return customerTexts.notice("MsgBox25", "MsgBox13_2");
    FileDialog caixa_dialogo;
    caixa_dialogo.DefaultExt = ".txt";
    caixa_dialogo.ShowSave();
    if (caixa_dialogo.FileName.isEmpty())
        return;
    if (Existe_Arquivo(caixa_dialogo.FileName) && !customerTexts.confirms("MsgBox23", "MsgBox23_2", vbQuestion))
        return;

    SavedList list;
    list.heading = QStringList{text("DispositivoSaida13"), text("DispositivoSaida14")};
    list.dateLabel = text("DispositivoSaida15");
    list.entries = entriesOf(tab_clientes);
    list.entries.write = [write = list.entries.write](int row, const ReportLine &line) {
        write(row, line);
        line(" ");
    };
    list.closing =
        QStringList{QString::number(TotalClientes) + customerTexts.loaded(TotalClientes == 1 ? "String5" : "String6")};
    if (saveList(caixa_dialogo.FileName, list))
        customerTexts.notice("MsgBox24", "MsgBox24_2");
}
