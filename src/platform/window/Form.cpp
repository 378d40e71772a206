#include "platform/window/Form.h"

#include "platform/window/Forms.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QScopeGuard>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace {
/// What stays in view around the control that has the keyboard.
constexpr int focusMargin = 48;
} // namespace

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
    // A customer's name that looks like markup is a name.
    for (QLabel *label : findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
    Form_Load();
}

void Form::Show()
{
    if (!m_loaded)
        return;
    if (isMinimized())
        setWindowState(windowState() & ~Qt::WindowMinimized);
    if (!isVisible())
        fitToScreen();
    show();
    raise();
    activateWindow();
}

void Form::fitHeight()
{
    QLayout &contents = m_page ? *m_page->layout() : *layout();
    contents.activate();
    const int height =
        contents.hasHeightForWidth() ? contents.totalHeightForWidth(width()) : contents.totalSizeHint().height();
    (m_page ? *m_page : static_cast<QWidget &>(*this)).setFixedHeight(height);
}

void Form::fitToScreen()
{
    if (m_page || !layout())
        return;
    const QSize room = screen()->availableGeometry().size() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    const QSize wanted = testAttribute(Qt::WA_Resized) ? size() : sizeHint();
    const QSize size = wanted.boundedTo(room);
    QSize least = layout()->totalMinimumSize().expandedTo(minimumSize());
    if (layout()->hasHeightForWidth())
        least.setHeight(std::max(least.height(), layout()->totalMinimumHeightForWidth(size.width())));
    if (least.width() > room.width() || least.height() > room.height())
        scrollContents(least.width() > room.width());
    if (size != wanted)
        resize(size);
}

/// Whatever does not fit the screen can be reached by scrolling, and comes into view when it takes the keyboard.
void Form::scrollContents(bool sideways)
{
    QLayout *contents = layout();
    m_page = new QWidget;
    // Lists are as high as they like to be, as the page has no end.
    m_page->setMinimumHeight(contents->totalSizeHint().height());
    if (sideways)
        m_page->setMinimumWidth(contents->totalSizeHint().width());
    m_page->setLayout(contents);
    setMinimumSize(0, 0);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);

    auto *scroll = new QScrollArea;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(scroll);
    connect(qApp, &QApplication::focusChanged, scroll, [this, scroll](QWidget *, QWidget *now) {
        if (now && m_page->isAncestorOf(now))
            scroll->ensureWidgetVisible(now, focusMargin, focusMargin);
    });
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
