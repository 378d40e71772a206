#include "platform/files/IniProfile.h"

#include "platform/base/Err.h"
#include "platform/files/IniText.h"
#include "platform/files/Paths.h"
#include "platform/files/SafeFile.h"

#include <QHash>

namespace {
/// Empty when the file is there and cannot be read to its end; a missing file is an empty one.
std::optional<IniText> readIni(const QString &path)
{
    // A name without a folder means that the program knows none at the moment.
    if (!namesFolder(path))
        return IniText({});
    try {
        return IniText(readRegularFile(path));
    } catch (const RunTimeError &error) {
        return error.Number() == ErrorNumber::FileNotFound ? std::optional(IniText({})) : std::nullopt;
    }
}

int bursts = 0;
QHash<QString, std::optional<IniText>> filesRead;
} // namespace

QString GetPrivateProfileString(const QString &section, const QString &key, const QString &fallback, int size,
                                const QString &file)
{
    // Every read outside a burst goes to the file: another computer may have written it a moment ago.
    if (bursts == 0)
        filesRead.clear();
    auto ini = filesRead.constFind(file);
    if (ini == filesRead.cend())
        ini = filesRead.insert(file, readIni(resolveIgnoringCase(file)));
    const std::optional<QString> value = *ini ? (*ini)->value(section, key) : std::nullopt;
    return value.value_or(fallback).left(size - 1);
}

IniBurst::IniBurst()
{
    filesRead.clear();
    ++bursts;
}

IniBurst::~IniBurst()
{
    --bursts;
}

bool WritePrivateProfileString(const QString &section, const QString &key, const QString &value, const QString &file,
                               const QString &rightsOf)
{
    filesRead.clear();
    const QString path = resolveIgnoringCase(file);
    std::optional<IniText> ini = readIni(path);
    // What could not be read must not be replaced by what little is known of it.
    if (!ini)
        return false;
    ini->setValue(section, key, value);
    return OnErrorGoToEnd([&] { writeWholeFile(path, ini->bytes(), rightsOf); });
}
