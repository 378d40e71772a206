#include "sale/SaleScans.h"

#include "checkout/SaleLock.h"
#include "platform/window/Form.h"
#include "sale/ProductSearch.h"
#include "sale/SaleCart.h"

#include <QApplication>

namespace {
constexpr int boxCheckMilliseconds = 20;

bool isBoxOpen()
{
    return QApplication::activeModalWidget() != nullptr;
}
} // namespace

SaleScans::SaleScans(Form &window, const SaleLock &lock, ProductSearch &products, SaleCart &cart)
    : m_window(window), m_lock(lock), m_products(products), m_cart(cart), m_scanner(window, [this] {
        return isBoxOpen() || !m_lock.Bloqueio_Desconto;
    })
{
    connect(&m_scanner, &BarcodeScanner::Scanned, this, &SaleScans::take);
    connect(&m_later, &QTimer::timeout, this, &SaleScans::offerLeftCode);
}

void SaleScans::take(const QString &code)
{
    if (isBoxOpen()) {
        m_leftCode = code;
        m_later.start(boxCheckMilliseconds);
        return;
    }
    while (QWidget *list = QApplication::activePopupWidget())
        list->close();
    if (m_products.waitsForQuantity())
        m_cart.cmdadicionar_Click();
    if (m_window.isLoaded())
        m_products.lookUp(code);
}

void SaleScans::offerLeftCode()
{
    // The routine that asked goes on behind its box, perhaps to another one.
    if (isBoxOpen() || m_lock.Bloqueio_Desconto)
        return;
    m_later.stop();
    m_products.offerCode(m_leftCode);
}
