#include "windows/PageScale.h"

#include "configuration/Globais.h"
#include "platform/base/Err.h"
#include "platform/print/Printer.h"

void Salvar_Escala_Impressora()
{
    Globais::current().keptPageWidth = Printer::current().PageWidth();
    Globais::current().keptPageHeight = Printer::current().PageHeight();
}

void Restaurar_Escala_Impressora()
{
    OnErrorResumeNext([] {
        const Globais &globais = Globais::current();
        Printer::current().setPageSize(globais.keptPageWidth, globais.keptPageHeight);
    });
}
