#include "codes/CodeLabel.h"

#include "codes/LabelSheet.h"
#include "codes/frmetiquetas.h"
#include "platform/base/Err.h"
#include "platform/print/Printer.h"
#include "platform/window/Forms.h"
#include "windows/OpenForms.h"
#include "windows/PageScale.h"

namespace {
constexpr int moduleTwips = 18;
constexpr double barTwips = 700;

LabelChoice askForLabel(const QString &code)
{
    LabelChoice answer;
    auto &window = Forms::use<frmetiquetas>();
    // Cuts the connection when the wait is over.
    const QObject waiting;
    QObject::connect(&window, &frmetiquetas::confirmed, &waiting,
                     [&answer](const LabelChoice &choice) { answer = choice; });
    window.setEtiqueta_Em_Andamento(true);
    window.setCode(code);
    showAndWait(window);
    return answer;
}
} // namespace

void printCodeLabel(Form &opener, const QString &code)
{
    const LabelChoice choice = askForLabel(code);
    opener.setMousePointer(vbHourglass);
    if (choice.Coluna_Inicial > 0 && choice.Linha_Inicial > 0) {
        Imprimir_Barras({.tipo = "128",
                         .modulo = moduleTwips,
                         .altura = barTwips,
                         .textos = {code},
                         .mostrar_numero = choice.Mostrar_Numero,
                         .mostrar_barras = choice.Mostrar_Barras,
                         .linha = choice.Linha_Inicial,
                         .coluna = choice.Coluna_Inicial});
        OnErrorResumeNext<ErrorNumber::PrinterError>([] { Printer::current().EndDoc(); });
        Restaurar_Escala_Impressora();
    }
    opener.setMousePointer(vbDefault);
}
