#include "configuration/Idiomas.h"
#include "fuzz/Target.h"
#include "platform/files/IniProfile.h"
#include "platform/files/IniText.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// Input: section and key on a line each, then up to five files with a form feed between them; an empty one is missing.

namespace {
constexpr qsizetype longestValue = 499;

QString withoutDelimiters(const QString &value)
{
    return value.size() > 1 ? value.mid(1).chopped(1) : value;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir folder;
    QDir(folder.path()).mkdir("Languages");

    Input input(data, size);
    const QString section = input.takeText();
    const QString key = input.takeText();
    QString expected;
    for (int number = 1; number <= 5; ++number) {
        const QByteArray bytes = input.take('\f');
        QFile file(folder.filePath(QString("Languages/Portugues%1.lng").arg(number)));
        if (bytes.isEmpty())
            file.remove();
        else
            require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "the test can write");
        if (expected.isEmpty())
            expected = IniText(bytes).value(section, key).value_or(QString()).left(longestValue);
    }
    expected = withoutDelimiters(expected);

    const QString logical = folder.path() + "\\\\LANGUAGES\\PORTUGUES.LNG";
    require(Ler_Idioma(logical, section, key) == expected,
            "the first file with a text gives it, without its delimiters");
    const IniBurst burst;
    for (int time = 0; time < 2; ++time)
        require(Ler_Idioma(logical, section, key) == expected, "a burst reads the same texts");
    require(Ler_Idioma(logical.chopped(4) + ".abc", section, key).isEmpty(), "another language has no text here");
    return 0;
}
