#include "platform/print/PageScale.h"

#include "platform/base/Err.h"
#include "platform/print/Printer.h"

namespace {
int keptPageWidth = 0;
int keptPageHeight = 0;
} // namespace

void Salvar_Escala_Impressora()
{
    keptPageWidth = Printer::current().PageWidth();
    keptPageHeight = Printer::current().PageHeight();
}

void Restaurar_Escala_Impressora()
{
    OnErrorResumeNext([] { Printer::current().setPageSize(keptPageWidth, keptPageHeight); });
}
