#pragma once

#include "platform/jet/engine/Engine.h"

#include <QScopeGuard>
#include <QStringView>

#include <functional>

/// Keeps a data file open, and opens it anew after it was lost: a share that vanishes and comes back serves again.
class OpenFile
{
public:
    /// Opens the file at once; raises CannotOpenFile or UnrecognisedFormat.
    explicit OpenFile(FileAccess access);

    /// Runs one operation. When the file is lost in it the error stands, and the next operation tries to open the file.
    template <typename Operation>
    auto use(Operation operation)
    {
        const std::shared_ptr<EngineSession> session = openSession();
        const auto leave = qScopeGuard([this] { forgetLostSession(); });
        return operation(*session);
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
