#pragma once

#include <QByteArray>
#include <QString>
#include <QStringConverter>

#include <optional>

/// The content of an INI file as raw bytes, so that a change leaves every byte alone that it does not mean.
///
/// Only the first section of a name counts, and in it the first key of a name. Names compare without regard to case and
/// to the blanks around them. A line that begins with ";" is a comment. A file in UTF-16 says so by its mark.
class IniText
{
public:
    explicit IniText(QByteArray bytes);

    const QByteArray &bytes() const { return m_bytes; }
    /// The lines without a mark: UTF-8 where the file is in UTF-16, and else as they stand.
    QByteArrayView lines() const { return QByteArrayView(m_text).sliced(m_start); }

    /// All that follows the key's "=", untrimmed; empty when there is no such key.
    std::optional<QString> value(QStringView section, QStringView key) const;
    void setValue(const QString &section, const QString &key, const QString &value);

private:
    /// Where a key stands or, when it is missing, where it would go; offsets into the text.
    struct Place
    {
        bool sectionFound = false;
        bool keyFound = false;
        qsizetype begin = 0;
        qsizetype end = 0;
    };

    Place find(QStringView section, QStringView key) const;
    /// Where the lines of a section begin.
    std::optional<qsizetype> findSection(QStringView section) const;
    QByteArray encoded(const QString &text) const;
    QString lineEnd() const;

    QByteArray m_bytes;
    /// What is searched: the bytes themselves, or UTF-8 made of UTF-16.
    QByteArray m_text;
    /// First byte of the text behind a byte order mark.
    qsizetype m_start = 0;
    std::optional<QStringConverter::Encoding> m_wide;
};
