#include "platform/jet/DBEngine.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/files/SafeFile.h"
#include "platform/jet/OpenFile.h"
#include "platform/jet/engine/Engine.h"

#include <QFileInfo>
#include <QHash>

namespace {

/// The password that each file was last offered: a repair is asked for by the path alone, because the files of old
/// held their password within themselves.
QHash<QString, QString> &offeredPasswords()
{
    static QHash<QString, QString> passwords;
    return passwords;
}

QString passwordIn(const QString &connect)
{
    constexpr QStringView key = u"PWD=";
    for (const QStringView part : QStringView(connect).split(u';')) {
        if (part.startsWith(key, Qt::CaseInsensitive))
            return part.mid(key.size()).toString();
    }
    return {};
}

} // namespace

DatabaseHandle Workspace::OpenDatabase(const QString &path, bool exclusive, bool readOnly, const QString &connect)
{
    const QString password = passwordIn(connect);
    offeredPasswords().insert(resolveIgnoringCase(path), password);
    return std::make_shared<Database>(std::make_unique<OpenFile>(FileAccess{path, password, exclusive, readOnly}));
}

Workspace &DBEngine::Workspaces(int)
{
    static Workspace workspace;
    return workspace;
}

DatabaseHandle DBEngine::CreateDatabase(const QString &path, const QString &connect)
{
    storageEngine().create(resolveIgnoringCase(path), passwordIn(connect));
    return Workspaces(0).OpenDatabase(path, false, false, connect);
}

void DBEngine::RepairDatabase(const QString &path)
{
    const QString resolved = resolveIgnoringCase(path);
    storageEngine().open({resolved, offeredPasswords().value(resolved)})->repair();
}

void DBEngine::CompactDatabase(const QString &from, const QString &to, const QString &locale, bool,
                               const QString &connect)
{
    const QString source = resolveIgnoringCase(from);
    const QString target = resolveIgnoringCase(to);
    if (QFileInfo::exists(target))
        throw RunTimeError(ErrorNumber::CannotOpenFile, QString("\"%1\" exists already.").arg(to));
    storageEngine().open({source, passwordIn(connect)})->backupTo(target);
    storageEngine().open({target, passwordIn(locale)})->compact();
    // It will stand where the other one stands, for all who work on that.
    takeRights(target, source);
}
