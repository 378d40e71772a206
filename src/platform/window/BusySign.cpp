#include "platform/window/BusySign.h"

#include "platform/window/Forms.h"

#include <QApplication>
#include <QExposeEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>

namespace {
constexpr int stripHeight = 4;
constexpr int steps = 20;
constexpr int stepsOfBar = 5;

/// Brings all windows to the screen once more: that one of them was uncovered stays unread as long as no events run.
void refreshWindows()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || !window->windowHandle())
            continue;
        QExposeEvent uncovered(window->rect());
        QCoreApplication::sendEvent(window->windowHandle(), &uncovered);
    }
}

class BusyStrip : public QWidget
{
public:
    using QWidget::QWidget;

    void goOn(bool withWindows)
    {
        m_step = (m_step + 1) % steps;
        if (withWindows && m_step % stepsOfBar == 1)
            refreshWindows();
        setGeometry(0, window()->height() - stripHeight, window()->width(), stripHeight);
        show();
        raise();
        repaint();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), palette().color(QPalette::Mid));
        const int left = width() * (m_step - stepsOfBar) / (steps - stepsOfBar);
        painter.fillRect(left, 0, width() * stepsOfBar / steps, height(), palette().color(QPalette::Highlight));
    }

private:
    int m_step = 0;
};

/// The window last opened stands in front where the system has told of none yet, as after a message box.
QWidget *windowInFront()
{
    if (auto *active = qobject_cast<Form *>(QApplication::activeWindow()))
        return active;
    QWidget *front = nullptr;
    for (Form *form : Forms::loaded())
        if (form->isVisible())
            front = form;
    return front;
}
} // namespace

void showBusySign(LongWork::Life life)
{
    static QPointer<BusyStrip> strip;
    if (life == LongWork::Life::Ended) {
        delete strip;
        return;
    }
    BusyStrip *shown = strip;
    if (!shown) {
        QWidget *window = windowInFront();
        if (!window)
            return;
        strip = shown = new BusyStrip(window);
    }
    shown->goOn(life == LongWork::Life::Waits);
}
