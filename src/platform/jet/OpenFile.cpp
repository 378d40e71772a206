#include "platform/jet/OpenFile.h"

#include "platform/base/Err.h"
#include "platform/files/Paths.h"
#include "platform/jet/Binder.h"
#include "platform/jet/Parser.h"

#include <QScopeGuard>

OpenFile::OpenFile(FileAccess access) : m_access(std::move(access))
{
    const LongWork work;
    openSession();
}

std::shared_ptr<EngineSession> OpenFile::openSession()
{
    if (m_session && !m_session->reachesItsFile()) {
        if (m_inTransaction)
            throw RunTimeError(ErrorNumber::DiskError, QString("\"%1\" was exchanged.").arg(m_access.path));
        m_session.reset();
    }
    if (!m_session) {
        FileAccess access = m_access;
        access.path = resolveIgnoringCase(access.path);
        std::shared_ptr<EngineSession> session = storageEngine().open(access);
        m_catalogue = session->readCatalogue();
        m_session = std::move(session);
    }
    return m_session;
}

void OpenFile::forgetLostSession()
{
    // Within a transaction the dead session stays and refuses all, so that no later part is stored without the first.
    if (m_session && !m_session->isAlive() && !m_inTransaction)
        m_session.reset();
}

Statement OpenFile::read(QStringView sql)
{
    Statement statement = parseStatement(sql);
    try {
        bindStatement(statement, m_catalogue);
        return statement;
    } catch (const RunTimeError &error) {
        if (error.Number() != ErrorNumber::UnknownTable && error.Number() != ErrorNumber::UnknownField)
            throw;
    }
    // Another program may have added the table since the file was opened.
    tables();
    statement = parseStatement(sql);
    bindStatement(statement, m_catalogue);
    return statement;
}

QList<TableDef> OpenFile::tables()
{
    return use([this](EngineSession &session) {
        m_catalogue = session.readCatalogue();
        return m_catalogue.tables();
    });
}

void OpenFile::inTransaction(const std::function<void()> &body)
{
    use([](EngineSession &session) { session.begin(); });
    m_inTransaction = true;
    const auto leave = qScopeGuard([this] {
        m_inTransaction = false;
        forgetLostSession();
    });
    try {
        body();
        openSession()->commit();
    } catch (...) {
        OnErrorResumeNext([this] { m_session->rollback(); });
        throw;
    }
}
