#include "platform/files/IniText.h"

#include "platform/text/Windows1252.h"

#include <algorithm>
#include <utility>

namespace {
constexpr QByteArrayView ByteOrderMark("\xEF\xBB\xBF");

bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}
} // namespace

IniText::IniText(QByteArray bytes)
    : m_bytes(std::move(bytes)), m_start(m_bytes.startsWith(ByteOrderMark) ? ByteOrderMark.size() : 0)
{
}

std::optional<QString> IniText::value(QStringView section, QStringView key) const
{
    const Place place = find(section, key);
    if (!place.keyFound)
        return {};
    return decoded(QByteArrayView(m_bytes).sliced(place.begin, place.end - place.begin));
}

void IniText::setValue(const QString &section, const QString &key, const QString &value)
{
    const Place place = find(section, key);
    QString text = value;
    if (!place.keyFound) {
        text = key + u'=' + value + lineEnd();
        if (!place.sectionFound)
            text.prepend(u'[' + section + u']' + lineEnd());
        const bool behindOpenLine = place.begin > m_start && m_bytes.at(place.begin - 1) != '\n';
        if (behindOpenLine)
            text.prepend(lineEnd());
    }
    m_bytes.replace(place.begin, place.end - place.begin, encoded(text));
    m_isUtf8.reset();
}

IniText::Place IniText::find(QStringView section, QStringView key) const
{
    const QByteArrayView all(m_bytes);
    Place place;
    place.begin = place.end = all.size();
    qsizetype next = 0;
    for (qsizetype begin = m_start; begin < all.size(); begin = next) {
        const qsizetype feed = all.indexOf('\n', begin);
        const qsizetype end = feed < 0 ? all.size() : feed;
        next = feed < 0 ? end : end + 1;
        QByteArrayView line = all.sliced(begin, end - begin);
        if (line.endsWith('\r'))
            line.chop(1);

        const QByteArrayView content = line.trimmed();
        const qsizetype bracket = content.startsWith('[') ? content.indexOf(']') : -1;
        if (bracket > 0) {
            if (place.sectionFound)
                break;
            place.sectionFound = isNamed(content.sliced(1, bracket - 1), section);
            if (place.sectionFound)
                place.begin = place.end = next;
        } else if (place.sectionFound && !content.startsWith(';')) {
            const qsizetype equals = line.indexOf('=');
            if (equals < 0)
                continue;
            if (isNamed(line.first(equals), key)) {
                place.keyFound = true;
                place.begin = begin + equals + 1;
                place.end = begin + line.size();
                break;
            }
            place.begin = place.end = next;
        }
    }
    return place;
}

bool IniText::isNamed(QByteArrayView name, QStringView wanted) const
{
    name = name.trimmed();
    // No encoding takes fewer bytes than the text has units; this spares most names the comparison.
    if (name.size() < wanted.size())
        return false;
    if (isAscii(name))
        return name.size() == wanted.size() && wanted.compare(QLatin1StringView(name), Qt::CaseInsensitive) == 0;
    return decoded(name).compare(wanted, Qt::CaseInsensitive) == 0;
}

bool IniText::isUtf8() const
{
    if (!m_isUtf8)
        m_isUtf8 = m_start > 0 || QByteArrayView(m_bytes).isValidUtf8();
    return *m_isUtf8;
}

QString IniText::decoded(QByteArrayView part) const
{
    if (isAscii(part))
        return QString::fromLatin1(part);
    return isUtf8() ? QString::fromUtf8(part) : fromWindows1252(part);
}

QByteArray IniText::encoded(const QString &text) const
{
    const QByteArray utf8 = text.toUtf8();
    const QByteArray narrow = toWindows1252(text);
    if (!isUtf8())
        return narrow;
    // A file without any accent yet has no encoding to keep. It is shared with programs of Windows, so their code page
    // comes first, unless it lacks a character or its bytes would read as another text in UTF-8.
    const bool open = m_start == 0 && isAscii(m_bytes);
    const bool fits = fromWindows1252(narrow) == text && !QByteArrayView(narrow).isValidUtf8();
    return open && fits ? narrow : utf8;
}

QString IniText::lineEnd() const
{
    // A new file is one for programs of Windows, too.
    const qsizetype feed = m_bytes.indexOf('\n');
    return feed < 0 || (feed > 0 && m_bytes.at(feed - 1) == '\r') ? "\r\n" : "\n";
}
