#include "windows/PageScale.h"

#include "configuration/Globais.h"
#include "platform/print/Printer.h"

void Salvar_Escala_Impressora()
{
    Globais::current().keptPageWidth = Printer::current().PageWidth();
    Globais::current().keptPageHeight = Printer::current().PageHeight();
}

void Restaurar_Escala_Impressora()
{
    const Globais &globais = Globais::current();
    Printer::current().setPageSize(globais.keptPageWidth, globais.keptPageHeight);
}

void setUpPrinter(Printer &printer, double points, ScaleMode scale)
{
    printer.setFontName("Courier New");
    printer.setFontSize(points);
    printer.setFontBold(false);
    printer.setScaleMode(scale);
}

void setUpSheet(Printer &printer, double points, ScaleMode scale)
{
    Salvar_Escala_Impressora();
    setUpPrinter(printer, points, scale);
    printer.setPageSize(a4Width, a4Height);
}
