#include "customers/CustomerPhoto.h"

#include "configuration/Arquivos.h"
#include "configuration/Globais.h"
#include "customers/CustomerTexts.h"
#include "photo/frmwebcam.h"
#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/jet/Recordset.h"
#include "platform/text/Numbers.h"
#include "platform/window/Forms.h"
#include "platform/window/Prompts.h"
#include "ui_frmcadastro_clientes.h"

namespace {
constexpr quint16 pictureWaits = 65535;
} // namespace

CustomerPhoto::CustomerPhoto(Form &form, Ui::frmcadastro_clientes &window) : m_form(form), ui(window)
{
    connect(ui.cmdwebcam, &QPushButton::clicked, this, &CustomerPhoto::cmdwebcam_Click);
    connect(ui.cmdadd, &QPushButton::clicked, this, &CustomerPhoto::cmdadd_Click);
    connect(ui.cmdremover, &QPushButton::clicked, this, &CustomerPhoto::forget);
}

void CustomerPhoto::forget()
{
    FotoWebcam = 0;
    CaminhoFoto = Placeholder::NoPhoto;
    ui.imgfoto->showNobody();
    if (Existe_Arquivo(caminhoFototemp()))
        OnErrorResumeNext([] { Kill(caminhoFototemp()); });
}

void CustomerPhoto::showStored(const Recordset &customer)
{
    // Though it is shown, a save without a new one clears its path. That stays.
    CaminhoFoto = Placeholder::NoPhoto;
    ui.imgfoto->showStored(customer.Fields("CaminhoFoto").text());
}

QString CustomerPhoto::pathToStore(double codigo)
{
    if (FotoWebcam != pictureWaits)
        return CaminhoFoto;
    const QString target = Pasta_Do_Arquivo(CaminhoBD) + "\\Fotos\\" + Cstr(codigo) + ".jpg";
    if (Existe_Arquivo(target))
        Kill(target);
    FileCopy(caminhoFototemp(), target, arquivoModelo(target));
    CaminhoFoto = target;
    return target;
}

void CustomerPhoto::cmdwebcam_Click()
{
    m_form.setMousePointer(vbHourglass);
    // Set before anything was captured, and left so by a cancelled capture: the next save then fails. It stays.
    FotoWebcam = pictureWaits;
    auto &window = Forms::use<frmwebcam>();
    connect(&window, &frmwebcam::confirmed, this, &CustomerPhoto::showWebcamPicture, Qt::UniqueConnection);
    window.Show();
    m_form.setMousePointer(vbDefault);
}

void CustomerPhoto::showWebcamPicture(const QString &file)
{
    OnErrorResumeNext<ErrorNumber::InvalidPicture>([&] { ui.imgfoto->showFile(file); });
}

void CustomerPhoto::cmdadd_Click()
{
    FotoWebcam = 0;
    FileDialog caixa_dialogo;
    caixa_dialogo.InitDir = Pasta_Do_Arquivo(CaminhoBD) + "\\Fotos";
    caixa_dialogo.Filter = "Todas as imagens(*.*) |*.bmp;*.jpg;*.gif| Arquivos JPG (*.jpg) |*.jpg|"
                           "Arquivos GIF (*.gif) |*.gif|Bitmap (*.bmp) |*.bmp|";
    caixa_dialogo.DialogTitle = "Foto do cliente";
    caixa_dialogo.ShowOpen();
    if (caixa_dialogo.FileName.isEmpty() || !Existe_Arquivo(caixa_dialogo.FileName))
        return;
    CaminhoFoto = caixa_dialogo.FileName;
    if (!OnErrorGoToEnd<ErrorNumber::InvalidPicture>([&] { ui.imgfoto->showFile(caixa_dialogo.FileName); }))
        customerTexts.notice("MsgBox26");
}
