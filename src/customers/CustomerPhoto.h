#pragma once

#include "data/Placeholders.h"

#include <QObject>

class Form;
class Recordset;
namespace Ui {
class frmcadastro_clientes;
}

/// The photo of the customer in the form: from a file, from the camera, or none.
class CustomerPhoto : public QObject
{
    Q_OBJECT

public:
    CustomerPhoto(Form &form, Ui::frmcadastro_clientes &window);

    /// No photo, neither shown nor waiting.
    void forget();
    /// Shows the photo of a stored customer.
    void showStored(const Recordset &customer);
    /// Path of the photo that a save stores. A waiting picture of the camera is copied to where the customer's photo
    /// belongs; raises when it can't be.
    QString pathToStore(double codigo);

private:
    void cmdwebcam_Click();
    void cmdadd_Click();
    void showWebcamPicture(const QString &file);

    Form &m_form;
    Ui::frmcadastro_clientes &ui;
    /// Path of the photo that the next save stores.
    QString CaminhoFoto = Placeholder::NoPhoto;
    /// 65535 when the next save takes the photo of the camera.
    quint16 FotoWebcam = 0;
};
