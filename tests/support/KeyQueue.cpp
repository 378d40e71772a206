#include "tests/support/KeyQueue.h"

#include <QCoreApplication>

#include <qpa/qwindowsysteminterface.h>

namespace {
/// Hours after the computer's start, as the window system counts; the last queue's keys are long past.
ulong stamp = 10'000'000;
constexpr ulong pauseBetweenQueues = 60'000;
} // namespace

KeyQueue &KeyQueue::press(Qt::Key key, int gap, Qt::KeyboardModifiers modifiers, const QString &text, bool repeats)
{
    stamp += static_cast<ulong>(gap);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(nullptr, stamp, type, key,
                                                                                             modifiers, text, repeats);
    return *this;
}

KeyQueue &KeyQueue::type(const QString &characters, int gap)
{
    for (const QChar character : characters) {
        if (character == '\n')
            press(Qt::Key_Return, gap, Qt::NoModifier, "\r");
        else
            press(Qt::Key(character.toUpper().unicode()), gap, Qt::NoModifier, character);
    }
    return *this;
}

void KeyQueue::arrive()
{
    stamp += pauseBetweenQueues;
    QCoreApplication::processEvents();
}

void scan(const QString &code, int gap)
{
    KeyQueue().type(code + "\n", gap).arrive();
}
