#include "codes/frmetiquetas.h"

#include "codes/AllCodes.h"
#include "platform/window/BoxKeys.h"
#include "ui_frmetiquetas.h"
#include "windows/WindowTexts.h"

namespace {
constexpr WindowTexts texts("frmetiquetas", "MsgBox1_2");
}

frmetiquetas::frmetiquetas() : ui(std::make_unique<Ui::frmetiquetas>())
{
    ui->setupUi(this);
    takesEntriesOnly(ui->cmbcoluna);
    takesEntriesOnly(ui->cmblinha);
    enterMovesTo(ui->cmbcoluna, ui->cmblinha);
    connect(ui->cmblinha, &ComboBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            cmdok_Click();
    });
    connect(ui->cmdok, &QPushButton::clicked, this, &frmetiquetas::cmdok_Click);
    connect(ui->cmdcancelar, &QPushButton::clicked, this, &frmetiquetas::Unload);
}

frmetiquetas::~frmetiquetas() = default;

void frmetiquetas::Form_Load()
{
    setEtiqueta_Em_Andamento(false);
}

void frmetiquetas::Form_Activate()
{
    ui->cmbcoluna->setFocus();
}

void frmetiquetas::setEtiqueta_Em_Andamento(bool underWay)
{
    Etiqueta_Em_Andamento = underWay;
    ui->frame_etiquetas->setVisible(underWay);
}

void frmetiquetas::setCode(const QString &code)
{
    // A café's language files may be older than this line.
    if (const QString translated = texts.text("lblleitura"); !translated.isEmpty())
        ui->lblleitura->setText(translated);
    ui->lblleitura->setVisible(!code128Has(code));
}

void frmetiquetas::cmdok_Click()
{
    LabelChoice choice;
    if (Etiqueta_Em_Andamento) {
        choice.Mostrar_Numero = ui->chkcodigo->isChecked();
        choice.Mostrar_Barras = ui->chkbarras->isChecked();
        if (!choice.Mostrar_Numero && !choice.Mostrar_Barras) {
            texts.notice("MsgBox1");
            ui->chkcodigo->setFocus();
            return;
        }
    }
    choice.Coluna_Inicial = ui->cmbcoluna->Text().toInt();
    choice.Linha_Inicial = ui->cmblinha->Text().toInt();
    emit confirmed(choice);
    Unload();
}
