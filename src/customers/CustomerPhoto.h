#pragma once

#include <QObject>

struct CustomerState;
class Form;
namespace Ui {
class frmcadastro_clientes;
}

/// The photo of the customer in the form: from a file, from the camera, or none.
class CustomerPhoto : public QObject
{
    Q_OBJECT

public:
    CustomerPhoto(Form &form, Ui::frmcadastro_clientes &window, CustomerState &state);

    /// No photo, neither shown nor waiting.
    void forget();
    /// Copies a waiting picture of the camera to where the customer's photo belongs. Raises when it cannot.
    void keepWebcamPicture(double codigo);

private:
    void cmdwebcam_Click();
    void cmdadd_Click();
    void cmdremover_Click();
    void showWebcamPicture(const QString &file);

    Form &m_form;
    Ui::frmcadastro_clientes &ui;
    CustomerState &m_state;
};
