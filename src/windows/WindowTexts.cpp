#include "windows/WindowTexts.h"

#include "configuration/Idiomas.h"
#include "platform/files/IniProfile.h"
#include "platform/window/Prompts.h"

namespace {
struct Message
{
    QString text;
    QString title;
};

/// Both mostly stand in the same files. The burst ends before the message is shown, as that waits for an answer.
Message messageOf(const WindowTexts &texts, const QString &key, const QString &titleKey)
{
    const IniBurst burst;
    return {texts.text(key), texts.text(titleKey)};
}
} // namespace

QString WindowTexts::text(const QString &key) const
{
    return textoIdioma(m_section, key);
}

QString WindowTexts::loaded(const QString &key) const
{
    return textoCarregado(m_section, key);
}

void WindowTexts::notice(const QString &key) const
{
    notice(key, m_usualTitle);
}

void WindowTexts::notice(const QString &key, const QString &titleKey) const
{
    const Message shown = messageOf(*this, key, titleKey);
    MsgBox(shown.text, vbInformation, shown.title);
}

void WindowTexts::noticeText(const QString &text) const
{
    MsgBox(text, vbInformation, this->text(m_usualTitle));
}

bool WindowTexts::confirms(const QString &key, const QString &titleKey, int icon) const
{
    const Message shown = messageOf(*this, key, titleKey);
    return MsgBox(shown.text, vbYesNo + icon, shown.title) == vbYes;
}
