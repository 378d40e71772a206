#include "platform/jet/Binder.h"

#include "platform/base/Err.h"
#include "platform/jet/OrChains.h"
#include "platform/text/Numbers.h"

#include <algorithm>

namespace {

[[noreturn]] void refuseTypes()
{
    throw RunTimeError(ErrorNumber::TypeMismatch, "The types of a statement do not match.");
}

[[noreturn]] void refuseAggregate()
{
    throw RunTimeError(ErrorNumber::BadSql,
                       "Max, Min and Count stand only in the list of a query, without fields beside.");
}

ValueType typeOf(FieldType type)
{
    switch (type) {
    case FieldType::Number:
        return ValueType::Number;
    case FieldType::Boolean:
        return ValueType::Boolean;
    case FieldType::TextAnyCase:
        return ValueType::TextAnyCase;
    case FieldType::Text:
        break;
    }
    return ValueType::Text;
}

/// Binds expressions against one table; without a table no field is known.
class Binder
{
public:
    explicit Binder(const Catalogue &catalogue, const TableDef *table = nullptr)
        : m_catalogue(catalogue), m_table(table)
    {
    }

    void bind(Expression &expression);
    /// Binds a column of a query's list, where Max, Min and Count may stand.
    void bindColumn(Expression &column);
    void bindCondition(std::optional<Expression> &where);
    void bindAssignment(Assignment &assignment, const TableDef &table);

private:
    void bindOperands(Expression &expression);
    void bindCall(Expression &call);
    void bindMembership(Expression &test);
    void checkComparable(const Expression &left, const Expression &right) const;

    const Catalogue &m_catalogue;
    const TableDef *m_table;
};

void bindSelect(SelectStatement &select, const Catalogue &catalogue)
{
    const TableDef &table = catalogue.table(select.table);
    select.table = table.Name;
    if (select.columns.empty()) {
        for (const FieldDef &field : table.Fields)
            select.columns.push_back(Expression::ofField(field.Name));
    }
    Binder binder(catalogue, &table);
    for (Expression &column : select.columns)
        binder.bindColumn(column);
    const auto isAggregate = [](const Expression &column) { return column.isAggregate(); };
    if (std::any_of(select.columns.begin(), select.columns.end(), isAggregate) &&
        !std::all_of(select.columns.begin(), select.columns.end(), isAggregate))
        refuseAggregate();
    binder.bindCondition(select.where);
    for (OrderTerm &term : select.order)
        binder.bind(term.value);
}

/// Turns text that is to be calculated with into a number, at once where it is a literal.
void makeNumber(Expression &expression)
{
    if (expression.kind == ExpressionKind::Text)
        expression = Expression::ofNumber(Cdbl(expression.text));
    else if (expression.isText())
        expression = Expression::ofCall(Function::Cdbl, std::move(expression));
}

void makeText(Expression &expression)
{
    if (expression.kind == ExpressionKind::Number || expression.kind == ExpressionKind::Boolean)
        expression = Expression::ofText(Cstr(expression.number));
    else if (expression.type == ValueType::Number || expression.type == ValueType::Boolean)
        expression = Expression::ofCall(Function::Cstr, std::move(expression));
}

void makeBoolean(Expression &expression)
{
    // A boolean field is never Null.
    if (expression.kind == ExpressionKind::Null)
        expression = Expression::ofBoolean(false);
    makeNumber(expression);
    if (expression.kind == ExpressionKind::Number)
        expression = Expression::ofBoolean(expression.number != 0);
}

void Binder::bind(Expression &expression)
{
    switch (expression.kind) {
    case ExpressionKind::Null:
    case ExpressionKind::Number:
    case ExpressionKind::Boolean:
    case ExpressionKind::Text:
        return;
    case ExpressionKind::Field: {
        if (!m_table)
            throw RunTimeError(ErrorNumber::UnknownField,
                               QString("No field \"%1\" is known here.").arg(expression.text));
        const FieldDef &field = Catalogue::field(*m_table, expression.text);
        expression.text = field.Name;
        expression.type = typeOf(field.Type);
        return;
    }
    case ExpressionKind::Call:
        if (expression.isAggregate())
            refuseAggregate();
        bindCall(expression);
        return;
    case ExpressionKind::Arithmetic:
    case ExpressionKind::Negate:
        bindOperands(expression);
        for (Expression &operand : expression.operands)
            makeNumber(operand);
        expression.type = ValueType::Number;
        return;
    case ExpressionKind::Compare:
        bindOperands(expression);
        checkComparable(expression.operands[0], expression.operands[1]);
        break;
    case ExpressionKind::AllOf:
    case ExpressionKind::AnyOf:
    case ExpressionKind::Not:
        bindOperands(expression);
        for (const Expression &operand : expression.operands) {
            if (operand.isText())
                refuseTypes();
        }
        if (expression.kind == ExpressionKind::AnyOf)
            foldEqualities(expression);
        break;
    case ExpressionKind::IsNull:
        bindOperands(expression);
        break;
    case ExpressionKind::InList:
    case ExpressionKind::InSelect:
        bindMembership(expression);
        break;
    }
    expression.type = ValueType::Boolean;
}

void Binder::bindOperands(Expression &expression)
{
    for (Expression &operand : expression.operands)
        bind(operand);
}

void Binder::bindCall(Expression &call)
{
    bindOperands(call);
    call.type = ValueType::Number;
    if (call.function == Function::Max || call.function == Function::Min) {
        call.type = call.operands[0].type;
        return;
    }
    if (call.operands.empty() || call.operands[0].kind != ExpressionKind::Text)
        return;
    if (call.function == Function::Cdbl)
        call = Expression::ofNumber(Cdbl(call.operands[0].text));
    else if (call.function == Function::Val)
        call = Expression::ofNumber(Val(call.operands[0].text));
}

void Binder::bindMembership(Expression &test)
{
    bindOperands(test);
    for (std::size_t i = 1; i < test.operands.size(); ++i)
        checkComparable(test.operands[0], test.operands[i]);
    if (!test.select)
        return;
    bindSelect(*test.select, m_catalogue);
    if (test.select->columns.size() != 1)
        throw RunTimeError(ErrorNumber::BadSql, "A query inside a condition answers with one field.");
    checkComparable(test.operands[0], test.select->columns[0]);
}

void Binder::checkComparable(const Expression &left, const Expression &right) const
{
    const bool anyNull = left.type == ValueType::Null || right.type == ValueType::Null;
    if (!anyNull && left.isText() != right.isText())
        refuseTypes();
}

void Binder::bindColumn(Expression &column)
{
    if (column.isAggregate())
        bindCall(column);
    else
        bind(column);
}

void Binder::bindCondition(std::optional<Expression> &where)
{
    if (!where)
        return;
    bind(*where);
    if (where->isText())
        refuseTypes();
}

void Binder::bindAssignment(Assignment &assignment, const TableDef &table)
{
    const FieldDef &field = Catalogue::field(table, assignment.field);
    assignment.field = field.Name;
    assignment.fieldType = typeOf(field.Type);
    bind(assignment.value);
    if (assignment.fieldType == ValueType::Boolean)
        makeBoolean(assignment.value);
    else if (assignment.fieldType == ValueType::Number)
        makeNumber(assignment.value);
    else
        makeText(assignment.value);
}

} // namespace

void bindStatement(Statement &statement, const Catalogue &catalogue)
{
    if (auto *select = std::get_if<SelectStatement>(&statement)) {
        bindSelect(*select, catalogue);
    } else if (auto *insert = std::get_if<InsertStatement>(&statement)) {
        const TableDef &table = catalogue.table(insert->table);
        insert->table = table.Name;
        for (Assignment &assignment : insert->values)
            Binder(catalogue).bindAssignment(assignment, table);
    } else if (auto *update = std::get_if<UpdateStatement>(&statement)) {
        const TableDef &table = catalogue.table(update->table);
        update->table = table.Name;
        Binder binder(catalogue, &table);
        for (Assignment &assignment : update->values)
            binder.bindAssignment(assignment, table);
        binder.bindCondition(update->where);
    } else if (auto *deletion = std::get_if<DeleteStatement>(&statement)) {
        const TableDef &table = catalogue.table(deletion->table);
        deletion->table = table.Name;
        Binder(catalogue, &table).bindCondition(deletion->where);
    }
}
