#pragma once

#include "platform/jet/Database.h"

/// Inserts rows into one table of the design, each value written as its field's type wants it.
class RowWriter
{
public:
    RowWriter(Database &db, const QString &table, const QStringList &fields);

    /// Numbers and booleans as plain words ("12", "True"), all else as it shall be stored; in the order of the fields.
    void write(const QStringList &values);

private:
    Database &m_db;
    QString m_head;
    QList<bool> m_quoted;
};
