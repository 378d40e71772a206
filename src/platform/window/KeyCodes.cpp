#include "platform/window/KeyCodes.h"

#include <QKeyEvent>

int keyAscii(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return vbKeyReturn;
    if (event.key() == Qt::Key_Backspace)
        return vbKeyBack;
    const QString text = event.text();
    // Ctrl and Alt together are how some keyboards send AltGr, so it is the text that decides.
    return text.size() == 1 && text.at(0).isPrint() ? text.at(0).unicode() : 0;
}

int keyCode(const QKeyEvent &event)
{
    static constexpr struct
    {
        int key;
        int code;
    } codes[] = {{Qt::Key_Backspace, vbKeyBack},
                 {Qt::Key_Tab, 9},
                 {Qt::Key_Return, vbKeyReturn},
                 {Qt::Key_Enter, vbKeyReturn},
                 {Qt::Key_Escape, 27},
                 {Qt::Key_PageUp, 33},
                 {Qt::Key_PageDown, 34},
                 {Qt::Key_End, 35},
                 {Qt::Key_Home, 36},
                 {Qt::Key_Left, 37},
                 {Qt::Key_Up, vbKeyUp},
                 {Qt::Key_Right, 39},
                 {Qt::Key_Down, vbKeyDown},
                 {Qt::Key_Delete, vbKeyDelete},
                 {Qt::Key_F4, 115}};
    for (const auto &each : codes)
        if (each.key == event.key())
            return each.code;
    // Digits and letters alone are their own codes: "(" would be taken for an arrow, and "." for Delete.
    const bool digit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
    const bool letter = event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z;
    return digit || letter || event.key() == Qt::Key_Space ? event.key() : 0;
}

void filterKey(QKeyEvent *event, const std::function<void(int &)> &tell,
               const std::function<void(QKeyEvent *)> &deliver)
{
    const int code = keyAscii(*event);
    int told = code;
    if (code != 0)
        tell(told);
    if (told == code) {
        deliver(event);
        return;
    }
    event->accept();
    if (told == 0)
        return;
    const int key = told == vbKeyReturn ? int(Qt::Key_Return) : told == vbKeyBack ? int(Qt::Key_Backspace) : 0;
    QKeyEvent typed(event->type(), key, Qt::NoModifier, QString(QChar(told)), event->isAutoRepeat());
    deliver(&typed);
}

void filterCommit(QInputMethodEvent *event, const std::function<void(int &)> &tell)
{
    const QString text = event->commitString();
    if (text.size() != 1 || !text.at(0).isPrint())
        return;
    const int code = text.at(0).unicode();
    int told = code;
    tell(told);
    if (told != code)
        event->setCommitString(told == 0 ? QString() : QString(QChar(told)), event->replacementStart(),
                               event->replacementLength());
}
