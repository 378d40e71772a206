#include "checkout/frmconfig_recibo.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "ui_frmconfig_recibo.h"

frmconfig_recibo::frmconfig_recibo() : ui(std::make_unique<Ui::frmconfig_recibo>())
{
    ui->setupUi(this);
    connect(ui->cmdok, &QPushButton::clicked, this, &frmconfig_recibo::cmdok_Click);
}

frmconfig_recibo::~frmconfig_recibo() = default;

void frmconfig_recibo::Form_Load()
{
    const bool twoCopies = Ler_INI(caminhoConfig(), "Recibo", "Via") == "2";
    ui->opt2via->setChecked(twoCopies);
    ui->opt1via->setChecked(!twoCopies);
    Sempre_No_Topo(*this, true);
}

void frmconfig_recibo::cmdok_Click()
{
    Gravar_INI(caminhoConfig(), "Recibo", "Via", ui->opt2via->isChecked() ? "2" : "1");
    Unload();
}
