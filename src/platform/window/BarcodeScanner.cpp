#include "platform/window/BarcodeScanner.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace {
/// The longest gap and what a key may be late by on its way from the keyboard; shorter than anyone sees.
constexpr int holdMilliseconds = static_cast<int>(ScanBurst::LongestGap) + 23;
} // namespace

BarcodeScanner::BarcodeScanner(QWidget &window, const std::function<bool()> &listens)
    : QObject(&window), m_window(window), m_listens(listens)
{
    m_wait.setSingleShot(true);
    connect(&m_wait, &QTimer::timeout, this, &BarcodeScanner::waitedLongEnough);
    qApp->installEventFilter(this);
}

BarcodeScanner::~BarcodeScanner() = default;

bool BarcodeScanner::eventFilter(QObject *watched, QEvent *event)
{
    // Keys pass the system's window on their way to a control.
    if (!watched->isWindowType() || event == m_letGo)
        return false;
    auto &window = static_cast<QWindow &>(*watched);
    switch (event->type()) {
    case QEvent::KeyPress:
        return takesPress(window, *static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        return takesRelease(window, *static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
        letGo();
        return false;
    default:
        return false;
    }
}

/// Whether the keyboard stands in the window, or in a box or list above it.
bool BarcodeScanner::isInFront() const
{
    const QWidget *front = QApplication::activePopupWidget();
    if (!front)
        front = QApplication::activeModalWidget();
    if (!front)
        front = QApplication::activeWindow();
    while (front && front != &m_window)
        front = front->parentWidget();
    return front != nullptr;
}

bool BarcodeScanner::takesPress(QWindow &window, const QKeyEvent &press)
{
    if (!isInFront() || !m_listens()) {
        m_burst.giveUp();
        letGo();
        return false;
    }
    switch (m_burst.take(press)) {
    case ScanBurst::Verdict::Typing:
        letGo();
        m_swallowed.removeAll(press.key());
        return false;
    case ScanBurst::Verdict::Anew:
        letGo();
        [[fallthrough]];
    case ScanBurst::Verdict::Perhaps:
        hold(window, press);
        return true;
    case ScanBurst::Verdict::Scan:
        m_wait.stop();
        for (const HeldKey &held : std::exchange(m_held, {}))
            m_swallowed.append(held.event->key());
        m_swallowed.append(press.key());
        // Nothing behind this: the window may go while it looks the code up.
        emit Scanned(m_burst.code());
        return true;
    case ScanBurst::Verdict::Rest:
        m_swallowed.append(press.key());
        return true;
    }
    return false;
}

bool BarcodeScanner::takesRelease(QWindow &window, const QKeyEvent &release)
{
    const bool pressHeld = std::any_of(m_held.begin(), m_held.end(),
                                       [&](const HeldKey &held) { return held.event->key() == release.key(); });
    if (pressHeld)
        m_held.push_back({&window, std::unique_ptr<QKeyEvent>(release.clone())});
    return pressHeld || m_swallowed.removeAll(release.key()) > 0;
}

void BarcodeScanner::hold(QWindow &window, const QKeyEvent &key)
{
    m_held.push_back({&window, std::unique_ptr<QKeyEvent>(key.clone())});
    m_wait.start(holdMilliseconds);
}

void BarcodeScanner::waitedLongEnough()
{
    // Where the window was busy, the next key may wait behind this: the keys that are here already come first.
    if (m_wait.interval() != 0) {
        m_wait.start(0);
        return;
    }
    m_burst.giveUp();
    letGo();
}

void BarcodeScanner::letGo()
{
    m_wait.stop();
    for (const HeldKey &held : std::exchange(m_held, {})) {
        if (!held.window)
            continue;
        m_letGo = held.event.get();
        QCoreApplication::sendEvent(held.window, held.event.get());
    }
    m_letGo = nullptr;
}
