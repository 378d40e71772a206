#include "fuzz/Target.h"
#include "platform/files/IniText.h"
#include "platform/text/Utf8.h"
#include "platform/text/Windows1252.h"

#include <algorithm>
#include <optional>
#include <vector>

// Input: section, key and value on a line each, then the file.

namespace {
struct Entry
{
    qsizetype section;
    QString key;
    QByteArray value;
    /// Where the value stands in the file.
    qsizetype begin;

    bool operator==(const Entry &other) const
    {
        return section == other.section && key == other.key && value == other.value;
    }
};

QString decoded(const QByteArray &bytes)
{
    return bytes.isValidUtf8() ? fromUtf8(bytes) : fromWindows1252(bytes);
}

/// A file in UTF-16 as the same lines in UTF-8, others as they are.
QByteArray plainBytes(const QByteArray &bytes)
{
    const bool little = bytes.startsWith("\xFF\xFE");
    if (!little && !bytes.startsWith("\xFE\xFF"))
        return bytes;
    QString text;
    for (qsizetype i = 2; i + 1 < bytes.size(); i += 2) {
        const auto unit = [&](qsizetype at) { return static_cast<unsigned char>(bytes[at]); };
        text += QChar(little ? unit(i) | unit(i + 1) << 8 : unit(i) << 8 | unit(i + 1));
    }
    // Not to be taken for the mark of UTF-8.
    return '\n' + text.toUtf8();
}

/// The file read in the plainest way, line by line, where the program leaps.
class PlainReading
{
public:
    explicit PlainReading(const QByteArray &file)
    {
        const QByteArray bytes = plainBytes(file);
        const qsizetype mark = bytes.startsWith("\xEF\xBB\xBF") ? 3 : 0;
        for (qsizetype begin = mark, next = 0; begin < bytes.size(); begin = next) {
            const qsizetype feed = bytes.indexOf('\n', begin);
            next = feed < 0 ? bytes.size() : feed + 1;
            QByteArray line = bytes.mid(begin, (feed < 0 ? next : feed) - begin);
            if (line.endsWith('\r'))
                line.chop(1);
            readLine(line, begin);
        }
    }

    const Entry *find(const QString &section, const QString &key) const
    {
        const auto sameName = [](const QString &name) {
            return [&name](const QString &other) { return other.compare(name, Qt::CaseInsensitive) == 0; };
        };
        const auto first = std::find_if(sections.begin(), sections.end(), sameName(section));
        const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry &entry) {
            return entry.section == first - sections.begin() && sameName(key)(entry.key);
        });
        return found == entries.end() ? nullptr : &*found;
    }

    std::vector<QString> sections;
    std::vector<Entry> entries;

private:
    void readLine(const QByteArray &line, qsizetype begin)
    {
        const QByteArray content = line.trimmed();
        const qsizetype equals = line.indexOf('=');
        if (content.startsWith('[') && content.contains(']'))
            sections.push_back(decoded(content.mid(1, content.indexOf(']') - 1).trimmed()));
        else if (!sections.empty() && equals >= 0 && !content.startsWith(';'))
            entries.push_back({static_cast<qsizetype>(sections.size()) - 1, decoded(line.left(equals).trimmed()),
                               line.mid(equals + 1), begin + equals + 1});
    }
};

/// Whether the windows could pass such a text: one line without blanks around it.
bool isPlain(const QString &text)
{
    return text == text.trimmed() && !text.contains('\n') && !text.contains('\r');
}

/// Whether a text comes back from a file in the code page; some of its texts read as another one in UTF-8.
bool fitsCodePage(const QString &text)
{
    const QByteArray narrow = toWindows1252(text);
    return decoded(narrow) == text;
}

void checkWrite(const QByteArray &before, const QString &section, const QString &key, const QString &value)
{
    IniText ini(before);
    ini.setValue(section, key, value);
    const QByteArray after = ini.bytes();
    require(ini.value(section, key) == value, "a written value is read back");

    const PlainReading old(before);
    const PlainReading fresh(after);
    const Entry *replaced = old.find(section, key);
    const Entry *written = fresh.find(section, key);
    require(written && decoded(written->value) == value, "a written value stands where any program looks for it");

    std::vector<Entry> rest = fresh.entries;
    const auto place = written - fresh.entries.data();
    if (replaced)
        rest[static_cast<std::size_t>(place)].value = replaced->value;
    else
        rest.erase(rest.begin() + place);
    require(rest == old.entries, "a write keeps every other key");
    if (plainBytes(before) != before) {
        require(after.left(2) == before.left(2), "a write keeps the mark");
        ini.setValue(section, key, value);
        require(ini.bytes() == after, "the same value again changes nothing");
        return;
    }
    const qsizetype head = replaced ? replaced->begin : 0;
    const qsizetype tail = replaced ? before.size() - head - replaced->value.size() : 0;
    if (replaced) {
        require(after.left(head) == before.left(head) && after.right(tail) == before.right(tail) &&
                    after.size() == head + written->value.size() + tail,
                "a write keeps every byte around the value");
    } else {
        const auto [kept, other] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
        const QByteArray behind(kept, before.end() - kept);
        require(after.endsWith(behind) && after.size() > before.size(), "a new key takes no byte away");
    }

    ini.setValue(section, key, value);
    require(ini.bytes() == after, "the same value again changes nothing");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    Input input(data, size);
    const QString section = input.takeText();
    const QString key = input.takeText();
    const QString value = input.takeText();
    const QByteArray &file = input.rest();

    const PlainReading plain(file);
    const IniText ini(file);
    const auto check = [&](const QString &inSection, const QString &ofKey) {
        const Entry *entry = plain.find(inSection, ofKey);
        const std::optional<QString> found = ini.value(inSection, ofKey);
        require(found.has_value() == (entry != nullptr), "a key is found where it stands, and nowhere else");
        require(!found || *found == decoded(entry->value), "a key has the value that stands behind it");
    };
    check(section, key);
    for (const Entry &entry : plain.entries)
        check(plain.sections[static_cast<std::size_t>(entry.section)].toUpper(), entry.key);

    const bool keyFits = !key.contains('=') && !key.startsWith(';') && !key.startsWith('[');
    if (!isPlain(section) || !isPlain(key) || section.contains(']') || !keyFits || value.contains('\r'))
        return 0;
    const bool inCodePage = !file.isValidUtf8() && !file.startsWith("\xEF\xBB\xBF");
    if (!inCodePage || (fitsCodePage(section) && fitsCodePage(key) && fitsCodePage(value)))
        checkWrite(file, section, key, value);
    return 0;
}
