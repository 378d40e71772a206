#include "reports/ListReport.h"

#include "data/Funcoes.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/TextOutput.h"
#include "platform/print/Printer.h"
#include "platform/text/Dates.h"

#include <algorithm>

const QString reportRule(98, '*');

namespace {
constexpr int fullPage = 59;

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

void setUpPage(Printer &printer)
{
    printer.setFontName("Courier New");
    printer.setFontSize(10);
    printer.setFontBold(false);
    Salvar_Escala_Impressora();
    printer.setPageSize(a4Width, a4Height);
    printer.setScaleMode(ScaleMode::Characters);
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
    printer.Print(reportRule);
}

void printPages(Printer &printer, const PrintedList &list)
{
    const ReportLine print = [&](const QString &line) { printer.Print(onOneLine(line)); };
    const QString moment = momentText();
    int counter = 1;
    int page = 0;
    for (int entry = 1; entry <= list.entries.count; ++entry) {
        if (counter == 1 || counter >= fullPage) {
            printHead(printer, list, moment, ++page);
            counter = 1;
        }
        counter += list.linesPerEntry;
        list.entries.write(entry, print);
    }
    list.close(counter, print);
}
} // namespace

void printList(const PrintedList &list)
{
    Printer &printer = Printer::current();
    OnErrorGoToEnd([&] {
        setUpPage(printer);
        printPages(printer, list);
    });
    printer.setDocumentName(list.documentName);
    OnErrorResumeNext([&] { printer.EndDoc(); });
    Restaurar_Escala_Impressora();
}

bool saveList(const QString &file, const SavedList &list)
{
    return OnErrorGoToEnd([&] {
        TextOutput output;
        output.Open(file);
        const ReportLine write = [&](const QString &line) { output.Print(onOneLine(line)); };
        for (const QString &line : list.heading)
            write(line);
        write(list.dateLabel + momentText());
        write(reportRule);
        for (int entry = 1; entry <= list.entries.count; ++entry)
            list.entries.write(entry, write);
        for (const QString &line : list.closing)
            write(line);
        output.Close();
    });
}
