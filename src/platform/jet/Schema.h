#pragma once

#include <QList>
#include <QString>

/// How a field is declared in a data file.
enum class FieldType
{
    Number,
    Text,
    TextAnyCase, ///< text whose equality ignores case
    Boolean,
};

struct FieldDef
{
    QString Name;
    FieldType Type = FieldType::Text;
};

/// What a key does with a number that is taken already.
enum class KeyKind
{
    None,
    Refuse,   ///< the row is refused
    Renumber, ///< the row gets the next free number, in the same step; for rows that nobody addresses by number
};

struct TableDef
{
    QString Name;
    QList<FieldDef> Fields;
    KeyKind Key = KeyKind::None;
    QString KeyField;
    QList<QString> IndexedFields;
};

/// Text fields of a table that become numbers, by the regional settings of the computer that runs the step. What is no
/// number there becomes its longest leading number, 0 where there is none; Null stays Null.
struct FieldsToNumbers
{
    QString Table;
    QList<QString> Fields;
};

/// One step of a data file's design. Steps are numbered from 1 and run in that order, each once for a file.
struct SchemaStep
{
    int Number;
    QList<TableDef> NewTables;
    QList<FieldsToNumbers> NewNumbers = {};
};
