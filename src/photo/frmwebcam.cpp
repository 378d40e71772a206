#include "photo/frmwebcam.h"

#include "configuration/Arquivos.h"
#include "configuration/Idiomas.h"
#include "photo/Conversor_JPG.h"
#include "platform/window/Clipboard.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"
#include "ui_frmwebcam.h"

frmwebcam::frmwebcam() : ui(std::make_unique<Ui::frmwebcam>())
{
    ui->setupUi(this);
    connect(ui->cmdcapturar_tela, &QPushButton::clicked, this, &frmwebcam::cmdcapturar_tela_Click);
    connect(ui->cmdconfirmar, &QPushButton::clicked, this, &frmwebcam::cmdconfirmar_Click);
    connect(ui->cmdcancelar, &QPushButton::clicked, this, &frmwebcam::Unload);
}

frmwebcam::~frmwebcam() = default;

void frmwebcam::Form_Load()
{
    Sempre_No_Topo(*this, true);
    const QString cannotUse = textoIdioma("Funcoes", "MsgBox9");
    m_capture.connectTo(*ui->JanelaCaptura, cannotUse);
    // The window may have been closed before the camera answered.
    if (!isLoaded() || m_capture.Conectado)
        return;
    m_capture.close();
    MsgBox(cannotUse, vbInformation, textoIdioma("Funcoes", "MsgBox1_2"));
    Unload();
}

void frmwebcam::Form_Unload()
{
    m_capture.close();
}

void frmwebcam::cmdcapturar_tela_Click()
{
    m_capture.copyFrame();
    if (Clipboard::hasPicture())
        ui->pctfoto->setPicture(Clipboard::GetData());
    // Without a picture, too: the confirmation then waits its time out, and that stays.
    ui->cmdconfirmar->setEnabled(true);
}

void frmwebcam::cmdconfirmar_Click()
{
    const EventPump pump;
    const QString file = caminhoFototemp();
    Salvar_JPG(ui->pctfoto->Picture(), file);
    emit confirmed(file);
    Unload();
}
