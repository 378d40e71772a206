#include "data/Funcoes.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "data/FirstRow.h"
#include "data/Placeholders.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/media/Sound.h"
#include "platform/print/Printer.h"
#include "platform/text/Numbers.h"
#include "platform/window/Form.h"
#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"

#include <algorithm>

double IdCaixa = 0;

namespace {
int keptPageWidth = 0;
int keptPageHeight = 0;

QString fixedDiscountQuery(double code)
{
    return "Select Relativo,Absoluto From Descontos Where Codigo=" + Cstr(code) + " AND Fixo=True";
}
} // namespace

bool Tem_Apostrofo(const QString &text)
{
    return text.contains('\'');
}

bool Form_Aberto(const QString &name)
{
    const QList<Form *> forms = Forms::loaded();
    return std::any_of(forms.begin(), forms.end(), [&](const Form *form) { return form->Name() == name; });
}

void Aguardar_Form(const QString &name)
{
    constexpr int turnMilliseconds = 50;
    do {
        Machine::current().sleep(turnMilliseconds);
        DoEvents();
    } while (Form_Aberto(name));
}

void showAndWait(Form &window)
{
    window.Show();
    Sempre_No_Topo(window, true);
    Aguardar_Form(window.Name());
}

void Descarregar_Forms()
{
    const QList<Form *> forms = Forms::loaded();
    for (Form *form : forms) {
        // Unloading a window may have unloaded this one too.
        if (Forms::loaded().contains(form) && form->Name() != "frmprincipal_adm")
            OnErrorResumeNext([&] { form->Unload(); });
    }
}

void Salvar_Escala_Impressora()
{
    keptPageWidth = Printer::current().PageWidth();
    keptPageHeight = Printer::current().PageHeight();
}

void Restaurar_Escala_Impressora()
{
    OnErrorResumeNext([] { Printer::current().setPageSize(keptPageWidth, keptPageHeight); });
}

int Filtrar_Numero(int key, const QString &text, bool negative)
{
    if (key == '.' && !text.contains(','))
        key = ',';

    const bool accepted = (key >= '0' && key <= '9') || key == vbKeyBack || (key == ',' && !text.contains(',')) ||
                          (key == '-' && negative && !text.contains('-'));
    return accepted ? key : 0;
}

double Valor_Proporcional(double share, double base, double value)
{
    // A sale of free goods has nothing to share out.
    if (base == 0)
        return 0;
    double result = 0;
    OnErrorResumeNext([&] { result = Cdbl(Format(((value * 100 / base) * share) / 100, u"##0.00")); });
    return result;
}

void Tocar_Som(const QString &path)
{
    if (Ler_INI(caminhoConfig(), "Som", "Ativo") != "0" && Existe_Arquivo(path))
        OnErrorResumeNext([&] { sndPlaySound(path, SND_ASYNC); });
}

void Tocar_Caixa()
{
    if (Ler_INI(caminhoConfig(), "Som", "Caixa Reg") != "0")
        Tocar_Som(Pasta_Do_Arquivo(CaminhoBD) + "\\Caixa.wav");
}

QString Simbolo_Moeda_Regional()
{
    return FormatCurrency(0, 0).remove('0').trimmed();
}

QString Categoria_Do_Produto(const QString &description)
{
    // Each call adds one more separator to the path. It stays: every path of the program is joined so.
    CaminhoBD = Pasta_Do_Arquivo(CaminhoBD) + "\\Morvelane.mdb";
    QString category = Placeholder::NoCategory;
    readFirstRow("Select Categoria From Produtos Where Descrição='" + description + "'", [&](const Recordset &rs) {
        const FieldValue value = rs.Fields("Categoria");
        if (!value.isNull())
            category = value.text();
    });
    return category;
}

QString Grupo_Do_Cliente(const QString &name)
{
    QString group;
    readFirstRow("Select Grupo From Clientes Where Nome='" + name + "'",
                 [&](const Recordset &rs) { group = rs.Fields("Grupo").text(); });
    return group;
}

bool Tem_Link(const QString &name)
{
    return hasRow("Select Codigo from Links Where Nome='" + name + "'");
}

void Obter_Ultimo_Caixa()
{
    IdCaixa = 0;
    readFirstRow("Select MAX(ID_Caixa) From Registro_Caixa",
                 [](const Recordset &rs) { IdCaixa = rs.Fields(0).number(); });
}

bool Caixa_Aberto()
{
    bool open = false;
    Obter_Ultimo_Caixa();
    readFirstRow("Select Caixa_Aberto From Registro_Caixa Where Id_Caixa=" + Cstr(IdCaixa),
                 [&](const Recordset &rs) { open = rs.Fields("Caixa_Aberto").boolean(); });
    return open;
}

bool Tem_Desconto_Fixo(double code)
{
    return hasRow(fixedDiscountQuery(code));
}

double Valor_Desconto_Fixo(double code, double total)
{
    double discount = 0;
    readFirstRow(fixedDiscountQuery(code), [&](const Recordset &rs) {
        const FieldValue percentage = rs.Fields("Relativo");
        if (!percentage.isNull() && percentage.number() > 0)
            discount = Cdbl(Format(percentage.number() * total / 100, u"#0.00"));
        else
            discount = rs.Fields("Absoluto").number();
    });
    return discount;
}

bool Desconto_Atendido(quint8 code, const QString &value)
{
    bool refused = false;
    readFirstRow("Select * from Descontos Where Codigo=" + Cstr(code), [&](const Recordset &rs) {
        if (!rs.Fields("LiberarAuto").boolean())
            return;
        const double total = Cdbl(value);
        const double threshold = Cdbl(rs.Fields("Valor").text());
        const bool atLeast = Val(rs.Fields("Condicao").text()) == 1;
        refused = atLeast ? total < threshold : total != threshold;
    });
    return refused;
}

bool Desconto_Libera_Auto(quint8 code)
{
    bool automatic = false;
    readFirstRow("Select LiberarAuto from Descontos Where Codigo=" + Cstr(code),
                 [&](const Recordset &rs) { automatic = rs.Fields("LiberarAuto").boolean(); });
    return automatic;
}
