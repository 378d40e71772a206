#pragma once

#include "platform/window/Form.h"

#include <memory>

namespace Ui {
class frmconfig_recibo;
}

/// How many copies of a receipt are printed.
class frmconfig_recibo : public Form
{
    Q_OBJECT

public:
    frmconfig_recibo();
    ~frmconfig_recibo() override;

protected:
    void Form_Load() override;

private:
    void cmdok_Click();

    std::unique_ptr<Ui::frmconfig_recibo> ui;
};
