#pragma once

#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/jet/engine/Engine.h"

#include <QScopeGuard>
#include <QStringView>

#include <functional>

/// Keeps a data file open, and opens it anew after it was lost or exchanged: a share that vanishes and comes back
/// serves again, and so does a backup that was put in the file's place.
class OpenFile
{
public:
    /// Opens the file at once; raises CannotOpenFile or UnrecognisedFormat.
    explicit OpenFile(FileAccess access);

    /// Runs one operation, on a file opened anew where that was exchanged. When the file is lost in it the error
    /// stands, and the next operation tries to open the file.
    template <typename Operation>
    auto use(Operation operation)
    {
        const LongWork work;
        const auto leave = qScopeGuard([this] { forgetLostSession(); });
        const std::shared_ptr<EngineSession> session = openSession();
        try {
            return operation(*session);
        } catch (const RunTimeError &error) {
            if (error.Number() != ErrorNumber::UnrecognisedFormat || session->isAlive() || m_inTransaction)
                throw;
        }
        // A backup that was written over the file cannot be read by the old session. Nothing of the operation is
        // stored, as a statement that fails is undone.
        forgetLostSession();
        return operation(*openSession());
    }

    /// A statement bound to the tables that the file has now.
    Statement read(QStringView sql);
    QList<TableDef> tables();
    /// Runs a body as one transaction; the file is not opened anew within it.
    void inTransaction(const std::function<void()> &body);

private:
    std::shared_ptr<EngineSession> openSession();
    void forgetLostSession();

    FileAccess m_access;
    std::shared_ptr<EngineSession> m_session;
    Catalogue m_catalogue;
    bool m_inTransaction = false;
};
