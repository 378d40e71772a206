#pragma once

#include <QList>

class QGroupBox;
class QPushButton;
class QWidget;
class WindowTexts;

/// Edits a record of a list by one button: a press begins, the next one asks and saves.
class TwoPressEdit
{
public:
    virtual ~TwoPressEdit() = default;

    void cmdeditar_Click();

protected:
    /// The button's text at rest and during an edit, and the question before a save.
    struct Keys
    {
        const char *resting;
        const char *editing;
        const char *question;
        const char *title;
    };

    /// Nothing is under edit. `card` holds the boxes of the record; what is `locked` can't be used during an edit.
    TwoPressEdit(const WindowTexts &texts, const Keys &keys, QPushButton &button, QGroupBox &card,
                 const QList<QWidget *> &locked);

    virtual void begin() = 0;
    /// False when a refusal leaves the edit open.
    virtual bool save() = 0;
    /// After a save, or after a no to the question.
    virtual void end() = 0;

    void setUnderEdit(bool underEdit);

private:
    const WindowTexts &m_texts;
    const Keys m_keys;
    QPushButton &m_button;
    QGroupBox &m_card;
    const QList<QWidget *> m_locked;
};
