#pragma once

#include "photo/MemCap.h"
#include "platform/window/Form.h"

namespace Ui {
class frmwebcam;
}

/// Takes a customer's photo with the first camera.
class frmwebcam : public Form
{
    Q_OBJECT

public:
    frmwebcam();
    ~frmwebcam() override;

signals:
    /// The photo was taken over; `file` holds it, if it could be written.
    void confirmed(const QString &file);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdcapturar_tela_Click();
    void cmdconfirmar_Click();

    std::unique_ptr<Ui::frmwebcam> ui;
    MemCap m_capture;
};
