#include "checkout/ReceiptOptions.h"

#include "checkout/frmconfig_recibo.h"
#include "platform/window/Form.h"
#include "platform/window/Forms.h"
#include "platform/window/Label.h"

#include <QCheckBox>

void opensReceiptOptions(Label *lblconfigurar_recibo, QCheckBox *chkrecibo)
{
    QObject::connect(lblconfigurar_recibo, &Label::Click, chkrecibo, [chkrecibo] {
        chkrecibo->setChecked(true);
        auto &window = Forms::use<frmconfig_recibo>();
        window.Show();
        Sempre_No_Topo(window, true);
    });
}
