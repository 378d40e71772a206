#pragma once

#include "platform/jet/Schema.h"

/// The tables of an open file, looked up without regard to case.
class Catalogue
{
public:
    Catalogue() = default;
    explicit Catalogue(QList<TableDef> tables) : m_tables(std::move(tables)) {}

    const QList<TableDef> &tables() const { return m_tables; }
    /// Raises UnknownTable.
    const TableDef &table(const QString &name) const;
    /// Raises UnknownField.
    static const FieldDef &field(const TableDef &table, const QString &name);

private:
    QList<TableDef> m_tables;
};
