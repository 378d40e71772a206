#include "platform/window/Form.h"

#include "platform/window/Forms.h"

#include <QCloseEvent>
#include <QPushButton>
#include <QScopeGuard>
#include <QWindow>

Form::Form()
{
    setAttribute(Qt::WA_QuitOnClose, false);
}

void Form::Load()
{
    m_loaded = true;
    // Enter presses the button that has the keyboard, on every desktop.
    for (QPushButton *button : findChildren<QPushButton *>())
        button->setAutoDefault(true);
    Form_Load();
}

void Form::Show()
{
    if (!m_loaded)
        return;
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void Form::Unload()
{
    if (!m_loaded)
        return;
    m_loaded = false;
    const auto leave = qScopeGuard([this] {
        hide();
        Forms::retire(this);
    });
    Form_Unload();
}

void Form::setMousePointer(int pointer)
{
    if (pointer == vbHourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

bool Form::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowActivate && m_loaded && Forms::becomesActive(this))
        Form_Activate();
    return handled;
}

void Form::closeEvent(QCloseEvent *event)
{
    event->accept();
    Unload();
}

void Sempre_No_Topo(Form &form, bool flag)
{
    // Changed on the live window: QWidget::setWindowFlag would hide it and show it anew.
    form.overrideWindowFlags(form.windowFlags().setFlag(Qt::WindowStaysOnTopHint, flag));
    if (QWindow *window = form.windowHandle())
        window->setFlag(Qt::WindowStaysOnTopHint, flag);
    if (flag && form.isVisible())
        form.raise();
}
