#include "cafe/Cafe.h"

#include "cafe/Resources.h"
#include "data/Esquema.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"
#include "platform/files/IniText.h"
#include "platform/files/Paths.h"
#include "platform/files/SafeFile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr int languageFiles = 5;
constexpr int longestText = 500;

void checkDesign(const QList<TableDef> &tables, QStringList &faults)
{
    const auto named = [](const auto &list, const QString &name) {
        return std::find_if(list.begin(), list.end(),
                            [&](const auto &entry) { return entry.Name.compare(name, Qt::CaseInsensitive) == 0; });
    };
    // A file that has not seen the later steps is as sound as one that has.
    const QList<TableDef> before = esquemaDoBanco().constFirst().NewTables;
    for (const TableDef &wanted : tabelasDoBanco()) {
        const auto table = named(tables, wanted.Name);
        if (table == tables.end()) {
            faults.append("Morvelane.mdb: the table " + wanted.Name + " is missing");
            continue;
        }
        for (const FieldDef &field : wanted.Fields) {
            const auto found = named(table->Fields, field.Name);
            const QString name = "Morvelane.mdb: the field " + wanted.Name + '.' + field.Name;
            if (found == table->Fields.end())
                faults.append(name + " is missing");
            else if (found->Type != field.Type &&
                     found->Type != named(named(before, wanted.Name)->Fields, field.Name)->Type)
                faults.append(name + " is of another type");
        }
    }
}

void checkDataFile(const QString &folder, QStringList &faults)
{
    try {
        const DatabaseHandle db = openDataFile(folder);
        for (const QString &fault : db->checkIntegrity())
            faults.append("Morvelane.mdb: " + fault);
        checkDesign(db->TableDefs(), faults);
        for (const QString &part : db->foreignParts())
            faults.append("Morvelane.mdb: the " + part + " is not the program's own");
    } catch (const RunTimeError &error) {
        faults.append("Morvelane.mdb: " + error.Description());
    }
}

/// The first line that is no section, key, comment or blank; a damaged file seldom has only one.
void checkIniForm(const QString &path, QStringList &faults)
{
    const QString name = QFileInfo(path).fileName();
    QByteArray bytes;
    if (!OnErrorGoToEnd([&] { bytes = readRegularFile(path); })) {
        faults.append(name + ": cannot be read, or is no file of this folder");
        return;
    }
    static const QRegularExpression lineForm(R"(^\s*(;.*|\[[^\]]+\]\s*|[^=\s;\[][^=]*=.*)?$)");
    const IniText ini(bytes);
    int number = 0;
    for (QByteArray line : ini.lines().toByteArray().split('\n')) {
        ++number;
        while (line.endsWith('\r'))
            line.chop(1);
        const bool control =
            std::any_of(line.begin(), line.end(), [](char c) { return c >= 0 && c < 32 && c != '\t'; });
        if (control || !lineForm.match(QString::fromUtf8(line)).hasMatch()) {
            faults.append(QString("%1, line %2: neither a section, a key nor a comment").arg(name).arg(number));
            return;
        }
    }
}

/// A link that leads nowhere is there, too.
bool isThere(const QString &path)
{
    return QFileInfo::exists(path) || QFileInfo(path).isSymLink();
}

QString valueOf(const QString &file, const QString &section, const QString &key)
{
    return GetPrivateProfileString(section, key, {}, longestText, file);
}

void checkReceiptCounters(const QString &folder, QStringList &faults)
{
    const QString path = resolveIgnoringCase(folder + "/inf.rcb");
    // There is none before the first receipt.
    if (!isThere(path))
        return;
    checkIniForm(path, faults);
    for (const QString &key : QStringList{"ID", "ID_Total"}) {
        bool isNumber = false;
        const QString value = valueOf(path, "Recibo", key);
        value.toUInt(&isNumber);
        if (!value.isEmpty() && !isNumber)
            faults.append("inf.rcb: " + key + " is no number");
    }
}

void checkLanguage(const QString &folder, const QString &language, QStringList &faults)
{
    const QString base = folder + "/Languages/" + language.chopped(4);
    QStringList files;
    for (int number = 1; number <= languageFiles; ++number) {
        const QString path = resolveIgnoringCase(base + QString::number(number) + language.right(4));
        if (isThere(path)) {
            checkIniForm(path, faults);
            files.append(path);
        }
    }
    for (const QStringList &text : resourceTable("language_keys.tsv").rows) {
        QString value;
        for (qsizetype i = 0; i < files.size() && value.isEmpty(); ++i)
            value = valueOf(files[i], text[0], text[1]);
        const QString name = language + ": [" + text[0] + "] " + text[1];
        if (value.isEmpty())
            faults.append(name + " is missing");
        else if (value.size() < 3 || value.front() != value.back())
            faults.append(name + " does not stand between two equal marks");
        else if (value.size() == longestText - 1)
            faults.append(name + " is too long");
    }
}

void checkConfiguration(const QString &folder, QStringList &faults)
{
    const QString config = configFileOf(folder);
    if (!isThere(config)) {
        faults.append("config.ini: is missing");
        return;
    }
    checkIniForm(config, faults);
    const QString language = valueOf(config, "Config_Regional", "Idioma");
    if (language.size() <= 4)
        faults.append("config.ini: [Config_Regional] Idioma names no language");
    else
        checkLanguage(folder, language, faults);
}

/// What else terminals look for, and whether those who have no business here can read any of it.
void checkFolder(const QString &folder, QStringList &faults)
{
    if (!QFileInfo(resolveIgnoringCase(folder + "/Fotos")).isDir())
        faults.append("Fotos: is missing, so no photo can be kept");
    if (!QFileInfo(resolveIgnoringCase(folder + "/Caixa.wav")).isFile())
        faults.append("Caixa.wav: is missing, so no sale is heard");

    if (!QFileInfo(folder).permission(QFile::ExeOther))
        return;
    for (const char *name : {"Morvelane.mdb", "config.ini", "inf.rcb", "Fotos", "Fototemp.jpg"}) {
        if (QFileInfo(resolveIgnoringCase(folder + '/' + name)).permission(QFile::ReadOther))
            faults.append(QString(name) + ": strangers can read it (chmod -R o-rwx)");
    }
}

} // namespace

QStringList checkCafe(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        throw RunTimeError(ErrorNumber::FileNotFound, folder + ": there is no such folder");
    QStringList faults;
    checkDataFile(folder, faults);
    checkConfiguration(folder, faults);
    checkReceiptCounters(folder, faults);
    checkFolder(folder, faults);
    return faults;
}
