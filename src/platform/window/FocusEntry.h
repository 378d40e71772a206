#pragma once

class QFocusEvent;

/// Tells an entry into a box from a return to it out of another window or a menu. An entry by mouse counts when the
/// button is up, so that a selection made at the entry stays.
class FocusEntry
{
public:
    /// True when the keyboard or the program entered the box.
    bool focusIn(const QFocusEvent &event);
    void focusOut(const QFocusEvent &event);
    /// True when this release ends an entry by mouse.
    bool mouseRelease();

private:
    bool m_interrupted = false;
    bool m_byMouse = false;
};
