#include "platform/files/IniText.h"

#include "platform/text/Utf8.h"
#include "platform/text/Windows1252.h"

#include <QtEndian>

#include <string>
#include <utility>

namespace {
constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
constexpr qsizetype wideMarkSize = 2;

std::optional<QStringConverter::Encoding> wideEncoding(QByteArrayView bytes)
{
    if (bytes.startsWith("\xFF\xFE"))
        return QStringConverter::Utf16LE;
    if (bytes.startsWith("\xFE\xFF"))
        return QStringConverter::Utf16BE;
    return {};
}

/// Half a character at the end is left out; it stays in the file.
QString wideText(QByteArrayView bytes, QStringConverter::Encoding encoding)
{
    const qsizetype units = (bytes.size() - wideMarkSize) / 2;
    std::u16string text(static_cast<std::size_t>(units), u'\0');
    const char *first = bytes.data() + wideMarkSize;
    if (encoding == QStringConverter::Utf16LE)
        qFromLittleEndian<char16_t>(first, units, text.data());
    else
        qFromBigEndian<char16_t>(first, units, text.data());
    return QString::fromStdU16String(text);
}

/// A line without its end; `next` is where the following one begins.
struct Line
{
    QByteArrayView text;
    qsizetype next;
};

Line lineAt(QByteArrayView bytes, qsizetype begin)
{
    const qsizetype feed = bytes.indexOf('\n', begin);
    const qsizetype end = feed < 0 ? bytes.size() : feed;
    QByteArrayView text = bytes.sliced(begin, end - begin);
    if (text.endsWith('\r'))
        text.chop(1);
    return {text, feed < 0 ? end : feed + 1};
}

/// Whether nothing but blanks stands between the last line end and here.
bool beginsLine(QByteArrayView before)
{
    constexpr QByteArrayView blanks(" \t\v\f\r");
    while (!before.isEmpty() && blanks.contains(before.back()))
        before.chop(1);
    return before.isEmpty() || before.endsWith('\n');
}

/// Each text is looked at for itself: a program of Windows may have added its lines to a UTF-8 file of ours.
QString decoded(QByteArrayView part)
{
    if (isAscii(part))
        return QString::fromLatin1(part);
    return part.isValidUtf8() ? fromUtf8(part) : fromWindows1252(part);
}

bool isNamed(QByteArrayView name, QStringView wanted)
{
    name = name.trimmed();
    // No encoding takes fewer bytes than the text has units; this spares most names the comparison.
    if (name.size() < wanted.size())
        return false;
    if (isAscii(name))
        return name.size() == wanted.size() && wanted.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0;
    return decoded(name).compare(wanted, Qt::CaseInsensitive) == 0;
}
} // namespace

IniText::IniText(QByteArray bytes) : m_bytes(std::move(bytes)), m_text(m_bytes), m_wide(wideEncoding(m_bytes))
{
    // Each unit that is no character becomes one that is, so that the text's units keep their places.
    if (m_wide)
        m_text = wideText(m_bytes, *m_wide).toUtf8();
    else if (m_bytes.startsWith(byteOrderMark))
        m_start = byteOrderMark.size();
}

std::optional<QString> IniText::value(QStringView section, QStringView key) const
{
    const Place place = find(section, key);
    if (!place.keyFound)
        return {};
    return decoded(QByteArrayView(m_text).sliced(place.begin, place.end - place.begin));
}

void IniText::setValue(const QString &section, const QString &key, const QString &value)
{
    const Place place = find(section, key);
    QString text = value;
    if (!place.keyFound) {
        text = key + u'=' + value + lineEnd();
        if (!place.sectionFound)
            text.prepend(u'[' + section + u']' + lineEnd());
        const char before = place.begin > m_start ? m_text.at(place.begin - 1) : '\n';
        // Half a line end is completed, as a whole one behind it would leave its half in the value before.
        if (before != '\n')
            text.prepend(before == '\r' ? "\n" : lineEnd());
    }
    const qsizetype length = place.end - place.begin;
    if (m_wide) {
        const qsizetype before = fromUtf8(QByteArrayView(m_text).first(place.begin)).size();
        const qsizetype units = fromUtf8(QByteArrayView(m_text).sliced(place.begin, length)).size();
        const QByteArray wide = QStringEncoder(*m_wide)(text);
        m_bytes.replace(wideMarkSize + 2 * before, 2 * units, wide);
        m_text.replace(place.begin, length, text.toUtf8());
        return;
    }
    m_text.replace(place.begin, length, encoded(text));
    m_bytes = m_text;
}

IniText::Place IniText::find(QStringView section, QStringView key) const
{
    Place place;
    place.begin = place.end = m_text.size();
    const std::optional<qsizetype> lines = findSection(section);
    if (!lines)
        return place;

    place.sectionFound = true;
    place.begin = place.end = *lines;
    const QByteArrayView all(m_text);
    qsizetype next = 0;
    for (qsizetype begin = *lines; begin < all.size(); begin = next) {
        const Line line = lineAt(all, begin);
        next = line.next;
        const QByteArrayView content = line.text.trimmed();
        if (content.startsWith('[') && content.contains(']'))
            break;
        const qsizetype equals = line.text.indexOf('=');
        if (equals < 0 || content.startsWith(';'))
            continue;
        if (isNamed(line.text.first(equals), key)) {
            place.keyFound = true;
            place.begin = begin + equals + 1;
            place.end = begin + line.text.size();
            break;
        }
        place.begin = place.end = next;
    }
    return place;
}

std::optional<qsizetype> IniText::findSection(QStringView section) const
{
    const QByteArrayView all(m_text);
    // Brackets are few, so they are sought first and then asked whether they begin a line.
    for (qsizetype open = all.indexOf('[', m_start); open >= 0; open = all.indexOf('[', open + 1)) {
        if (!beginsLine(all.sliced(m_start, open - m_start)))
            continue;
        const Line line = lineAt(all, open);
        const qsizetype close = line.text.indexOf(']');
        if (close > 0 && isNamed(line.text.sliced(1, close - 1), section))
            return line.next;
    }
    return {};
}

QByteArray IniText::encoded(const QString &text) const
{
    QByteArray narrow = toWindows1252(text);
    if (m_start == 0 && !QByteArrayView(m_text).isValidUtf8())
        return narrow;
    // A file without any accent yet has no encoding to keep. It is shared with programs of Windows, so their code page
    // comes first, unless it lacks a character or its bytes would read as another text in UTF-8.
    const bool undecided = m_start == 0 && isAscii(m_text);
    const bool fits = fromWindows1252(narrow) == text && !QByteArrayView(narrow).isValidUtf8();
    return undecided && fits ? narrow : text.toUtf8();
}

QString IniText::lineEnd() const
{
    // A new file is one for programs of Windows, too.
    const qsizetype feed = m_text.indexOf('\n');
    return feed < 0 || (feed > 0 && m_text.at(feed - 1) == '\r') ? "\r\n" : "\n";
}
