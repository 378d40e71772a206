#pragma once

#include <QString>

/// The texts of one window: its section of the language files, and the key of the title that most of its boxes bear.
class WindowTexts
{
public:
    constexpr WindowTexts(const char *section, const char *usualTitle) : m_section(section), m_usualTitle(usualTitle) {}

    /// Read at the moment of use.
    QString text(const QString &key) const;
    /// As the start of the program left it.
    QString loaded(const QString &key) const;

    /// An information box with the text of that key.
    void notice(const QString &key) const;
    void notice(const QString &key, const QString &titleKey) const;
    /// The same with a text that was put together.
    void noticeText(const QString &text) const;
    /// Asks yes or no; true for a yes. `icon` is a style of MsgBox.
    bool confirms(const QString &key, const QString &titleKey, int icon) const;

private:
    const char *m_section;
    const char *m_usualTitle;
};
