#include "platform/jet/DBEngine.h"

#include "platform/files/Paths.h"
#include "platform/jet/OpenFile.h"
#include "platform/jet/engine/Engine.h"

namespace {

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

DatabaseHandle Workspace::OpenDatabase(const QString &path, bool, bool, const QString &connect)
{
    return std::make_shared<Database>(std::make_unique<OpenFile>(FileAccess{path, passwordIn(connect)}));
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
