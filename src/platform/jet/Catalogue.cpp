#include "platform/jet/Catalogue.h"

#include "platform/base/Err.h"

#include <algorithm>

namespace {

template <typename Named>
const Named *find(const QList<Named> &all, const QString &name)
{
    const auto found = std::find_if(all.begin(), all.end(), [&name](const Named &candidate) {
        // Case changes no length, and every field of a statement is looked up.
        return candidate.Name.size() == name.size() && candidate.Name.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == all.end() ? nullptr : &*found;
}

} // namespace

const TableDef &Catalogue::table(const QString &name) const
{
    if (const TableDef *found = find(m_tables, name))
        return *found;
    throw RunTimeError(ErrorNumber::UnknownTable, QString("The file holds no table \"%1\".").arg(name));
}

const FieldDef &Catalogue::field(const TableDef &table, const QString &name)
{
    if (const FieldDef *found = find(table.Fields, name))
        return *found;
    throw RunTimeError(ErrorNumber::UnknownField, QString("Table \"%1\" has no field \"%2\".").arg(table.Name, name));
}
