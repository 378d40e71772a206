#include "cafe/Cafe.h"

#include "cafe/DemoData.h"
#include "cafe/Resources.h"
#include "cafe/TillSound.h"
#include "data/Connection.h"
#include "data/Esquema.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"
#include "platform/jet/DBEngine.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <sys/stat.h>

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

/// Beside the wanted folder, so that it can take its place in one step.
class Workshop
{
public:
    explicit Workshop(const QString &place)
        : m_folder(place + "/.morvelane-cafe-XXXXXX"), m_use(m_folder.filePath(useFile))
    {
        removeAbandoned(place);
        // A process that ends in any way no longer holds it, however long ago it began.
        m_use.setStaleLockTime(0);
        if (!m_folder.isValid() || !m_use.tryLock(0))
            throw RunTimeError(ErrorNumber::PathAccess, place + ": cannot be written");
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    static constexpr auto useFile = "in-use";

    /// Folders of processes that were killed.
    static void removeAbandoned(const QString &place)
    {
        for (const QFileInfo &folder : QDir(place).entryInfoList({".morvelane-cafe-??????"}, kinds)) {
            const QString file = folder.filePath() + '/' + useFile;
            QLockFile use(file);
            use.setStaleLockTime(0);
            if (QFileInfo::exists(file) && use.tryLock(0))
                QDir(folder.filePath()).removeRecursively();
        }
    }
    static constexpr QDir::Filters kinds = QDir::Dirs | QDir::Hidden | QDir::NoSymLinks;

    QTemporaryDir m_folder;
    QLockFile m_use;
};

} // namespace

void createCafe(const QString &folder, const CafeOptions &options)
{
    const QString target = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    requireRoomFor(target);
    if (options.demo)
        requireDemoSizes(options);

    // Strangers have no business in a café, whatever the caller's other files are for.
    const mode_t mask = umask(0);
    umask(mask | S_IRWXO);
    const auto restoreMask = qScopeGuard([=] { umask(mask); });

    const Workshop workshop(QFileInfo(target).absolutePath());
    const QString draft = workshop.path("cafe");
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
