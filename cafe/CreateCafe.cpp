#include "cafe/Cafe.h"

#include "cafe/DemoData.h"
#include "cafe/Resources.h"
#include "cafe/TillSound.h"
#include "data/Esquema.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"
#include "platform/jet/DBEngine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <filesystem>
#include <system_error>

namespace {

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size() || !file.flush())
        throw RunTimeError(ErrorNumber::DiskError, path + ": " + file.errorString());
}

void makeFolder(const QString &path)
{
    if (!QDir().mkdir(path))
        throw RunTimeError(ErrorNumber::PathAccess, path + ": cannot be made");
}

void setKey(const QString &file, const QString &section, const QString &key, const QString &value)
{
    if (!WritePrivateProfileString(section, key, value, file))
        throw RunTimeError(ErrorNumber::DiskError, file + ": cannot be written");
}

void writeConfiguration(const QString &draft, const QString &target, const CafeOptions &options)
{
    const QString file = draft + "/config.ini";
    writeFile(file, withWindowsLineEnds(resourceBytes("config.ini")));
    // Terminals take the data file's path from here, so it names the place where the folder will stand.
    setKey(file, "SQL", "servidor", target + "/Morvelane.mdb");
    if (options.demo)
        setKey(file, "Descontos", "Padrao", demoDefaultMotive());
}

void writeLanguages(const QString &draft)
{
    makeFolder(draft + "/Languages");
    for (const QString &name : resourceNames("languages"))
        writeFile(draft + "/Languages/" + name, withWindowsLineEnds(resourceBytes("languages/" + name)));
}

void writeDataFile(const QString &draft, const CafeOptions &options)
{
    const DatabaseHandle db = DBEngine::CreateDatabase(draft + "/Morvelane.mdb", connectText());
    db->applySchema(esquemaDoBanco(options.oti ? OtiTable::With : OtiTable::Without));
    db->inTransaction([&] {
        fillBasics(*db);
        if (options.demo)
            fillDemo(*db, options);
    });
    db->Close();
}

void requireRoomFor(const QString &target)
{
    const QFileInfo there(target);
    if (there.exists() && !there.isDir())
        throw RunTimeError(ErrorNumber::PathAccess, target + ": is a file");
    if (there.isDir() && !QDir(target).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot))
        throw RunTimeError(ErrorNumber::PathAccess, target + ": the folder exists already and is not empty");
    if (!QFileInfo(there.absolutePath()).isDir())
        throw RunTimeError(ErrorNumber::FileNotFound, there.absolutePath() + ": there is no such folder");
}

} // namespace

void createCafe(const QString &folder, const CafeOptions &options)
{
    const QString target = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    requireRoomFor(target);
    if (options.demo)
        requireDemoSizes(options);

    // Everything is made in a hidden folder beside the wanted one, which takes its place in one step at the end.
    const QTemporaryDir workshop(QFileInfo(target).absolutePath() + "/.cafe-XXXXXX");
    if (!workshop.isValid())
        throw RunTimeError(ErrorNumber::PathAccess, QFileInfo(target).absolutePath() + ": cannot be written");
    const QString draft = workshop.filePath("cafe");
    makeFolder(draft);
    makeFolder(draft + "/Fotos");
    writeLanguages(draft);
    writeConfiguration(draft, target, options);
    writeFile(draft + "/Caixa.wav", tillSound());
    writeDataFile(draft, options);

    std::error_code error;
    std::filesystem::rename(draft.toStdString(), target.toStdString(), error);
    if (error)
        throw RunTimeError(ErrorNumber::PathAccess, target + ": " + QString::fromStdString(error.message()));
}
