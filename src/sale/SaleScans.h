#pragma once

#include "platform/window/BarcodeScanner.h"

#include <QObject>
#include <QString>
#include <QTimer>

class Form;
class ProductSearch;
class SaleCart;
struct SaleLock;

/// What a barcode scan does in the sale, wherever the keyboard stands: the product that waits for its quantity goes
/// into the cart, then the new one is looked up. A scan into a question or a notice answers nothing; its code waits in
/// the barcode box afterwards, the latest one when there were several.
class SaleScans : public QObject
{
    Q_OBJECT

public:
    SaleScans(Form &window, const SaleLock &lock, ProductSearch &products, SaleCart &cart);

private:
    void take(const QString &code);
    void offerLeftCode();

    Form &m_window;
    const SaleLock &m_lock;
    ProductSearch &m_products;
    SaleCart &m_cart;
    /// While a sale is being stored the window takes no entries, a scanner's neither.
    BarcodeScanner m_scanner;
    /// Scanned while a message box was open.
    QString m_leftCode;
    QTimer m_later;
};
