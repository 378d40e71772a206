#include "platform/jet/engine/SqlCipherEngine.h"

#include "platform/base/Err.h"
#include "platform/jet/engine/SqlCipherSession.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// "Jet1", in the header of a file that this engine made.
constexpr int applicationId = 0x4A657431;

} // namespace

std::unique_ptr<EngineSession> SqlCipherEngine::open(const FileAccess &access)
{
    return std::make_unique<SqlCipherSession>(access);
}

void SqlCipherEngine::create(const QString &path, const QString &password)
{
    if (QFileInfo::exists(path))
        throw RunTimeError(ErrorNumber::CannotOpenFile, QString("\"%1\" exists already.").arg(path));
    try {
        SqlCipherConnection connection({path, password}, SqlCipherConnection::Mode::Create);
        connection.run("PRAGMA application_id = " + std::to_string(applicationId));
    } catch (...) {
        QFile::remove(path);
        throw;
    }
}
