#include "reports/ListReport.h"

#include "configuration/Arquivos.h"
#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/base/Machine.h"
#include "platform/files/TextOutput.h"
#include "platform/print/Printer.h"
#include "platform/text/Dates.h"
#include "platform/text/Space.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Prompts.h"
#include "windows/PageScale.h"
#include "windows/WindowTexts.h"

#include <algorithm>

namespace {
constexpr int fullPage = 59;
constexpr double reportPoints = 10;

QString momentText()
{
    const QDateTime moment = Machine::current().now();
    return FormatDate(moment) + " às " + FormatTime(moment);
}

/// Line breaks and tabs out of a remark of several lines would wreck the columns.
QString onOneLine(QString line)
{
    std::replace_if(
        line.begin(), line.end(),
        [](QChar character) { return character.isSpace() || character.category() == QChar::Other_Control; }, ' ');
    return line;
}

template <typename Statement>
void attempt(ReportTrap trap, Statement statement)
{
    if (trap == ReportTrap::Skips)
        OnErrorResumeNext(statement);
    else
        statement();
}

QString textOf(const ListReport &list, const ReportField &field, int row)
{
    if (field.column == ReportField::NoColumn)
        return field.label;
    const QString text = list.grid.TextMatrix(row, field.column);
    const qsizetype blanks = field.width - text.size();
    const bool fits = field.width == 0 || (blanks < 0 && list.trap == ReportTrap::Skips);
    return field.label + text + (fits ? QString() : Space(blanks));
}

/// Makes the lines of one entry and hands over those that can be made, with their places in it.
template <typename Write>
void writeEntry(const ListReport &list, int row, Write write)
{
    int place = 0;
    for (const ReportLine &fields : list.lines) {
        attempt(list.trap, [&] {
            QString line;
            for (const ReportField &field : fields)
                line += textOf(list, field, row);
            write(onOneLine(line), place);
        });
        ++place;
    }
}

void printHead(Printer &printer, const PrintedList &list, const QString &moment, int page)
{
    if (page > list.lastPage)
        throw RunTimeError(ErrorNumber::Overflow, "Overflow");
    if (page > 1)
        printer.NewPage();
    printer.Print(list.heading + moment, false);
    const QString number = "Pág." + QString::number(page);
    printer.setCurrentX(static_cast<double>(list.numberEnd - number.size()));
    printer.Print(number);
    printer.Print(reportRule(list.columns));
    if (!list.columnHeads.isEmpty()) {
        printer.Print(list.columnHeads);
        printer.Print(reportRule(list.columns));
    }
}

void printPages(Printer &printer, const PrintedList &list)
{
    const QString moment = momentText();
    int counter = 1;
    int page = 0;
    for (int row = 1; row < list.grid.Rows(); ++row) {
        if (counter == 1 || counter >= fullPage) {
            printHead(printer, list, moment, ++page);
            counter = 1 + list.linesOfHead;
        }
        LongWork::goOn();
        writeEntry(list, row, [&](const QString &line, int place) {
            if (list.placedByCounter)
                printer.setCurrentY(counter + place);
            printer.Print(line);
        });
        counter += list.linesPerEntry;
    }
    list.close(counter, printer);
}
} // namespace

QString reportRule(int columns)
{
    return QString(columns, '*');
}

void printList(const PrintedList &list)
{
    const LongWork work;
    Printer &printer = Printer::current();
    OnErrorGoToEnd([&] {
        setUpSheet(printer, reportPoints, ScaleMode::Characters);
        printPages(printer, list);
    });
    printer.setDocumentName(list.documentName);
    OnErrorResumeNext<ErrorNumber::PrinterError>([&] { printer.EndDoc(); });
    Restaurar_Escala_Impressora();
}

QString chooseListFile(const WindowTexts &texts, const QString &question, const QString &title)
{
    FileDialog caixa_dialogo;
    caixa_dialogo.DefaultExt = ".txt";
    caixa_dialogo.ShowSave();
    const QString &file = caixa_dialogo.FileName;
    if (!file.isEmpty() && Existe_Arquivo(file) && !texts.confirms(question, title, vbQuestion))
        return {};
    return file;
}

bool saveList(const QString &file, const SavedList &list)
{
    const LongWork work;
    return OnErrorGoToEnd([&] {
        TextOutput output;
        const auto write = [&](const QString &line) { attempt(list.trap, [&] { output.Print(onOneLine(line)); }); };
        attempt(list.trap, [&] { output.Open(file); });
        for (const QString &line : list.heading)
            write(line);
        write(list.dateLabel + momentText());
        write(reportRule(list.columns));
        if (!list.columnHeads.isEmpty()) {
            write(list.columnHeads);
            write(reportRule(list.columns));
        }
        for (int row = 1; row < list.grid.Rows(); ++row) {
            LongWork::goOn();
            writeEntry(list, row, [&](const QString &line, int) { output.Print(line); });
        }
        for (const QString &line : list.closing)
            write(line);
        output.Close();
    });
}
