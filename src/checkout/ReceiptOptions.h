#pragma once

class Label;
class QCheckBox;

/// A click on the label asks for a receipt and opens the window that sets its copies.
void opensReceiptOptions(Label *lblconfigurar_recibo, QCheckBox *chkrecibo);
