#include "platform/window/FocusEntry.h"

#include <QFocusEvent>

#include <utility>

namespace {

bool isInterruption(const QFocusEvent &event)
{
    return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

} // namespace

bool FocusEntry::focusIn(const QFocusEvent &event)
{
    if (std::exchange(m_interrupted, false) && isInterruption(event))
        return false;
    m_byMouse = event.reason() == Qt::MouseFocusReason;
    return !m_byMouse;
}

void FocusEntry::focusOut(const QFocusEvent &event)
{
    m_interrupted = isInterruption(event);
    m_byMouse = false;
}

bool FocusEntry::mouseRelease()
{
    return std::exchange(m_byMouse, false);
}
