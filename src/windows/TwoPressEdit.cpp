#include "windows/TwoPressEdit.h"

#include "platform/window/Look.h"
#include "platform/window/Prompts.h"
#include "windows/WindowTexts.h"

#include <QPushButton>

TwoPressEdit::TwoPressEdit(const WindowTexts &texts, const Keys &keys, QPushButton &button, QGroupBox &card,
                           const QList<QWidget *> &locked)
    : m_texts(texts), m_keys(keys), m_button(button), m_card(card), m_locked(locked)
{
    setUnderEdit(false);
}

void TwoPressEdit::cmdeditar_Click()
{
    // The button's text tells whether a record is under edit: where a language has one text for both, none can be
    // saved. That stays.
    if (m_button.text() == m_texts.loaded(m_keys.resting))
        begin();
    else if (!m_texts.confirms(m_keys.question, m_keys.title, vbQuestion) || save())
        end();
}

void TwoPressEdit::setUnderEdit(bool underEdit)
{
    for (QWidget *control : m_locked)
        control->setEnabled(!underEdit);
    m_button.setText(m_texts.loaded(underEdit ? m_keys.editing : m_keys.resting));
    setCardState(m_card, underEdit ? CardState::Editing : CardState::Resting);
}
