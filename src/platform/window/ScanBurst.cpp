#include "platform/window/ScanBurst.h"

#include <QKeyEvent>

#include <utility>

namespace {
bool isEnter(const QKeyEvent &press)
{
    return press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
}

bool endsScan(const QKeyEvent &press)
{
    const bool plain = (press.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    return plain && (isEnter(press) || press.key() == Qt::Key_Tab);
}

/// A line feed comes as Ctrl+J, or as a second Enter.
bool isLineFeed(const QKeyEvent &press)
{
    return isEnter(press) || (press.key() == Qt::Key_J && press.modifiers() == Qt::ControlModifier);
}

bool isDigit(const QKeyEvent &press)
{
    const QString text = press.text();
    return text.size() == 1 && text.front() >= '0' && text.front() <= '9' && !press.isAutoRepeat();
}
} // namespace

bool ScanBurst::isQuick(const QKeyEvent &press)
{
    const quint64 now = press.timestamp();
    const std::optional<quint64> last = std::exchange(m_last, now);
    return last && now >= *last && now - *last <= LongestGap;
}

ScanBurst::Verdict ScanBurst::take(const QKeyEvent &press)
{
    const bool quick = isQuick(press);
    if (std::exchange(m_lineFeedMayFollow, false) && quick && isLineFeed(press))
        return Verdict::Rest;
    const bool digitsBefore = !std::exchange(m_scanned, false) && !m_code.isEmpty();
    if (!digitsBefore)
        m_code.clear();

    if (press.timestamp() != 0 && isDigit(press)) {
        if (!quick) {
            m_code = press.text();
            m_typing = false;
            return digitsBefore ? Verdict::Anew : Verdict::Perhaps;
        }
        if (!m_typing && m_code.size() < MostDigits) {
            m_code += press.text();
            return Verdict::Perhaps;
        }
    } else if (quick && m_code.size() >= FewestDigits && endsScan(press) && !press.isAutoRepeat()) {
        m_scanned = true;
        m_lineFeedMayFollow = isEnter(press);
        return Verdict::Scan;
    }
    giveUp();
    return Verdict::Typing;
}

void ScanBurst::giveUp()
{
    m_code.clear();
    m_typing = true;
}
