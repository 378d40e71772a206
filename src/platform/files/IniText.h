#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The content of an INI file as raw bytes, so that a change leaves every byte alone that it does not mean.
///
/// Only the first section of a name counts, and in it the first key of a name. Names compare without regard to case and
/// to the blanks around them. A line that begins with ";" is a comment.
class IniText
{
public:
    explicit IniText(QByteArray bytes);

    const QByteArray &bytes() const { return m_bytes; }

    /// All that follows the key's "=", untrimmed; empty when there is no such key.
    std::optional<QString> value(QStringView section, QStringView key) const;
    void setValue(const QString &section, const QString &key, const QString &value);

private:
    /// Where a key stands or, when it is missing, where it would go; offsets into the bytes.
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
    /// First byte behind a byte order mark.
    qsizetype m_start;
};
