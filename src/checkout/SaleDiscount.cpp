#include "checkout/SaleDiscount.h"

#include "checkout/DiscountRules.h"
#include "checkout/SaleLock.h"
#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Idiomas.h"
#include "data/Placeholders.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/window/ComboBox.h"
#include "platform/window/Label.h"
#include "platform/window/Pictures.h"
#include "platform/window/Prompts.h"
#include "platform/window/TextBox.h"
#include "windows/Amounts.h"
#include "windows/NumberKeys.h"

#include <QCheckBox>

namespace {
constexpr QSize motivePictureSize(20, 20);

bool isAboveZero(const Recordset &rs, const QString &field)
{
    bool above = false;
    OnErrorResumeNext([&] { above = rs.Fields(field).number() > 0; });
    return above;
}
} // namespace

SaleDiscount::SaleDiscount(const Controls &controls, const Texts &texts, const SaleLock &lock)
    : ui(controls), m_texts(texts), m_lock(lock)
{
    ui.imgdesconto->setPixmap(bundledPicture("imgdesconto", motivePictureSize));
    connect(ui.chkdesconto, &QCheckBox::clicked, this, &SaleDiscount::chkdesconto_Click);
    connect(ui.txtvalor_desconto, &TextBox::Change, this, &SaleDiscount::recalculate);
    connect(ui.txtvalor_desconto, &TextBox::GotFocus, this, &SaleDiscount::recalculate);
    lock.connect(ui.txtvalor_desconto, &TextBox::KeyPress, this,
                 [this](int &KeyAscii) { KeyAscii = Filtrar_Numero(KeyAscii, ui.txtvalor_desconto->text(), false); });
    connect(ui.txtmotivo, &ComboBox::Click, this, &SaleDiscount::txtmotivo_Click);
    connect(ui.imgdesconto, &Label::Click, this, &SaleDiscount::imgdesconto_Click);
}

void SaleDiscount::Listar_Motivos_Descontos()
{
    const QString standard = Ler_INI(caminhoConfig(), "Descontos", "Padrao").toUpper();
    forEachRow("Select * from Descontos Where Codigo>0 Order By Codigo", [&](const Recordset &rs) {
        OnErrorResumeNext([&] { ui.txtmotivo->addItem(rs.Fields("Codigo").text()); },
                          [&] {
                              const QString motive = rs.Fields("Motivo_Desconto").text();
                              ui.txtmotivo->setNote(ui.txtmotivo->count() - 1, motive);
                              if (motive.toUpper() == standard)
                                  m_defaultMotive = ui.txtmotivo->count() - 1;
                          });
    });
    ui.txtmotivo->setCurrentIndex(m_defaultMotive);
    txtmotivo_Click();
}

QString SaleDiscount::ruleOrder()
{
    return "Order By Val(Condicao) Desc, Cdbl(Valor) Desc, cdbl(Relativo) Desc, cdbl(Absoluto) Desc";
}

void SaleDiscount::TratarDescontosAutomaticos(const QString &valor, const QStringList &conditions)
{
    const QString head =
        "Select Codigo,Fixo,Relativo,Absoluto,Grupo, Categoria, AtoCadastro, Valor, TipoVenda From Descontos Where "
        "LiberarAuto = True and (((Cdbl(Valor)=Cdbl('" +
        valor + "') AND Condicao='2') OR (Cdbl(Valor)<=Cdbl('" + valor + "') AND Condicao='1'))) AND ";
    for (const QString &condition : conditions)
        if (pickRule(head + condition))
            return;
    // The box stays disabled when an earlier total had picked a rule; attendants know it as "this sale had a rule".
    ui.chkdesconto->setChecked(false);
}

bool SaleDiscount::pickRule(const QString &sql)
{
    QString code;
    forEachRow(sql, [&](const Recordset &rs) {
        if (code.isEmpty() && (isAboveZero(rs, "Relativo") || isAboveZero(rs, "Absoluto")))
            code = rs.Fields("Codigo").text();
    });
    if (code.isEmpty())
        return false;
    // A rule that was made while the window is open is in no list, and counts all the same.
    ui.txtmotivo->setText(code);
    txtmotivo_Click();
    ui.chkdesconto->setChecked(true);
    ui.chkdesconto->setEnabled(false);
    return true;
}

void SaleDiscount::Validar_Motivo(quint8 codigo, QString &motivo) const
{
    motivo.clear();
    if (ui.txtmotivo->count() == 0) {
        motivo = Placeholder::NoMotive;
        return;
    }
    readFirstRow("Select * from Descontos Where Codigo=" + QString::number(codigo),
                 [&](const Recordset &rs) { motivo = rs.Fields("Motivo_Desconto").text(); });
}

QString SaleDiscount::chosenMotive() const
{
    QString motive;
    OnErrorResumeNext<ErrorNumber::Overflow>([&] { Validar_Motivo(motiveCode(), motive); });
    return motive;
}

bool SaleDiscount::takeMotive(QString &motivo)
{
    motivo = Placeholder::NoMotive;
    if (!ui.chkdesconto->isChecked())
        return true;
    if (Valor_Desconto == 0) {
        ui.txtvalor_desconto->setText("0");
        return true;
    }
    motivo = chosenMotive();
    return !motivo.isEmpty();
}

bool SaleDiscount::ruleRefuses() const
{
    bool refuses = false;
    OnErrorResumeNext<ErrorNumber::Overflow>(
        // Asked as ever, though nothing here depends on the answer.
        [&] { Desconto_Libera_Auto(motiveCode()); },
        [&] { refuses = Desconto_Atendido(motiveCode(), amountText(Total_Venda)); });
    return refuses;
}

double SaleDiscount::motive() const
{
    return Val(QStringView(ui.txtmotivo->Text()));
}

quint8 SaleDiscount::motiveCode() const
{
    const double code = motive();
    if (code < 0 || code > 255)
        throw RunTimeError(ErrorNumber::Overflow, "The number of a motive is a byte.");
    return static_cast<quint8>(code);
}

void SaleDiscount::txtmotivo_Click()
{
    if (ui.txtmotivo->count() == 0)
        return;
    const double code = motive();
    if (Tem_Desconto_Fixo(code)) {
        ui.txtvalor_desconto->setText(Cstr(Valor_Desconto_Fixo(code, Total_Venda)));
        ui.txtvalor_desconto->setEnabled(false);
        return;
    }
    if (!ui.txtvalor_desconto->isEnabled())
        ui.txtvalor_desconto->setText({});
    ui.txtvalor_desconto->setEnabled(true);
}

void SaleDiscount::beginAnew()
{
    ui.chkdesconto->setEnabled(true);
    ui.chkdesconto->setChecked(false);
    Desconto_Marcado = false;
    ui.txtvalor_desconto->setText({});
    ui.txtmotivo->setCurrentIndex(m_defaultMotive);
    txtmotivo_Click();
}

void SaleDiscount::recalculate()
{
    if (m_lock.Bloqueio_Desconto)
        return;
    const QString typed = ui.txtvalor_desconto->text();
    if (ui.txtmotivo->count() > 0) {
        Motivo_Fixo = Tem_Desconto_Fixo(motive());
        if (!Motivo_Fixo && !typed.isEmpty())
            ui.chkdesconto->setChecked(true);
    }
    if (ui.chkdesconto->isChecked() || !Motivo_Fixo) {
        Texto_Desconto = typed.isEmpty() || typed == "-" ? QString("0") : blanksAsZeros(typed);
        OnErrorResumeNext<ErrorNumber::TypeMismatch>([&] { Valor_Desconto = shownAmount(Texto_Desconto); });
        if (Valor_Desconto > 0 && Desconto_Marcado)
            ui.chkdesconto->setChecked(true);
    }
    if (!ui.chkdesconto->isChecked()) {
        Texto_Desconto = "0";
        Valor_Desconto = 0;
    }
    const double rest = shownAmount(Total_Venda) - shownAmount(Valor_Desconto);
    Total_Final = rest >= 0 ? rest : 0;
    ui.lbltotal_final->setCaption(withSymbol(Total_Final));
}

void SaleDiscount::chkdesconto_Click()
{
    Desconto_Marcado = ui.chkdesconto->isChecked();
    if (!Desconto_Marcado && ui.txtvalor_desconto->isEnabled())
        ui.txtvalor_desconto->setText({});
    recalculate();
}

void SaleDiscount::imgdesconto_Click() const
{
    const QString code = ui.txtmotivo->Text();
    const QString motive = chosenMotive();
    const QString text =
        motive.isEmpty() ? code + textoIdioma(m_texts.section, m_texts.unknownMotive) : code + " - " + motive;
    MsgBox(text, vbInformation, textoIdioma(m_texts.section, m_texts.motiveTitle));
}
