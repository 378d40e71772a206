#include "configuration/WindowTexts.h"

#include "configuration/Idiomas.h"
#include "platform/window/Prompts.h"

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
    noticeText(text(key));
}

void WindowTexts::notice(const QString &key, const QString &titleKey) const
{
    MsgBox(text(key), vbInformation, text(titleKey));
}

void WindowTexts::noticeText(const QString &text) const
{
    MsgBox(text, vbInformation, this->text(m_usualTitle));
}

bool WindowTexts::confirms(const QString &key, const QString &titleKey, int icon) const
{
    return MsgBox(text(key), vbYesNo + icon, text(titleKey)) == vbYes;
}
