#pragma once

#include "platform/window/ScanBurst.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class QKeyEvent;
class QWindow;

/// The barcode scanner, which types like a keyboard, apart from the keyboard: its keys reach no control of a window,
/// nor of the message boxes and lists that open above it; the code that it read is told instead.
///
/// A digit is held back for the moment in which a scanner would have typed the next one; what turns out to be typed
/// by hand goes on in its order.
class BarcodeScanner : public QObject
{
    Q_OBJECT

public:
    /// Keys are looked at while `listens` says so.
    BarcodeScanner(QWidget &window, const std::function<bool()> &listens);
    ~BarcodeScanner() override;

signals:
    void Scanned(const QString &code);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct HeldKey
    {
        QPointer<QWindow> window;
        std::unique_ptr<QKeyEvent> event;
    };

    bool isInFront() const;
    bool takesPress(QWindow &window, const QKeyEvent &press);
    bool takesRelease(QWindow &window, const QKeyEvent &release);
    void hold(QWindow &window, const QKeyEvent &key);
    void waitedLongEnough();
    /// What was held goes where it was typed.
    void letGo();

    QWidget &m_window;
    std::function<bool()> m_listens;
    ScanBurst m_burst;
    std::vector<HeldKey> m_held;
    /// Keys whose press was kept from the controls; their release is, too.
    QList<int> m_swallowed;
    const QEvent *m_letGo = nullptr;
    QTimer m_wait;
};
