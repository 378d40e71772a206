#include "platform/jet/engine/SqlCipherRenderer.h"

#include "platform/jet/engine/SqlCipherFunctions.h"

#include <array>
#include <span>

namespace {

/// The engine takes no more than 999 parameters in a statement; a few lists must fit beside other literals.
constexpr std::size_t longestParameterList = 100;

constexpr std::array operators{"=", "<>", "<", "<=", ">", ">=", "+", "-", "*", "/"};
static_assert(operators.size() == static_cast<std::size_t>(Operator::Divide) + 1);
constexpr std::array functions{
    SqlCipherNames::Cdbl, SqlCipherNames::Val, SqlCipherNames::Cstr, "max", "min", "count", "count(*)"};
static_assert(functions.size() == static_cast<std::size_t>(Function::CountRows) + 1);

const char *textOf(Operator op)
{
    return operators[static_cast<std::size_t>(op)];
}

const char *nameOf(Function function)
{
    return functions[static_cast<std::size_t>(function)];
}

bool isEquality(const Expression &comparison)
{
    return comparison.op == Operator::Equal || comparison.op == Operator::NotEqual;
}

class Renderer
{
public:
    void selectWithKeys(const SelectStatement &statement);
    void select(const SelectStatement &statement);
    void insert(const InsertStatement &statement);
    void update(const UpdateStatement &statement);
    void deletion(const DeleteStatement &statement);

    RenderedStatement take() { return std::move(m_result); }

private:
    void columns(const SelectStatement &statement);
    void source(const SelectStatement &statement);
    /// The value as it is stored and calculated with; true is -1.
    void value(const Expression &expression);
    /// A value whose order counts.
    void orderedValue(const Expression &expression);
    /// A value whose equality counts.
    void comparedValue(const Expression &expression, const Expression &other);
    /// The value as a condition; true is 1.
    void truth(const Expression &expression);
    void call(const Expression &expression);
    void arithmetic(const Expression &expression);
    void comparison(const Expression &expression);
    void membership(const Expression &expression);
    void chain(std::span<const Expression> terms, const char *joint);
    void assigned(const Assignment &assignment);
    void where(const std::optional<Expression> &condition);
    void add(std::string_view text) { m_result.sql += text; }

    RenderedStatement m_result;
};

void Renderer::selectWithKeys(const SelectStatement &statement)
{
    columns(statement);
    for (const OrderTerm &term : statement.order) {
        add(", ");
        orderedValue(term.value);
    }
    source(statement);
}

void Renderer::select(const SelectStatement &statement)
{
    columns(statement);
    source(statement);
    const char *separator = " ORDER BY ";
    for (const OrderTerm &term : statement.order) {
        add(separator);
        orderedValue(term.value);
        add(term.descending ? " DESC" : "");
        separator = ", ";
    }
}

void Renderer::columns(const SelectStatement &statement)
{
    const char *separator = "SELECT ";
    for (const Expression &column : statement.columns) {
        add(separator);
        value(column);
        separator = ", ";
    }
}

void Renderer::source(const SelectStatement &statement)
{
    add(" FROM ");
    add(quotedName(statement.table));
    where(statement.where);
}

void Renderer::insert(const InsertStatement &statement)
{
    add("INSERT INTO ");
    add(quotedName(statement.table));
    const char *separator = " (";
    for (const Assignment &assignment : statement.values) {
        add(separator);
        add(quotedName(assignment.field));
        separator = ", ";
    }
    separator = ") VALUES (";
    for (const Assignment &assignment : statement.values) {
        add(separator);
        assigned(assignment);
        separator = ", ";
    }
    add(")");
}

void Renderer::update(const UpdateStatement &statement)
{
    add("UPDATE ");
    add(quotedName(statement.table));
    const char *separator = " SET ";
    for (const Assignment &assignment : statement.values) {
        add(separator);
        add(quotedName(assignment.field));
        add(" = ");
        assigned(assignment);
        separator = ", ";
    }
    where(statement.where);
}

void Renderer::deletion(const DeleteStatement &statement)
{
    add("DELETE FROM ");
    add(quotedName(statement.table));
    where(statement.where);
}

void Renderer::where(const std::optional<Expression> &condition)
{
    if (!condition)
        return;
    add(" WHERE ");
    truth(*condition);
}

void Renderer::assigned(const Assignment &assignment)
{
    if (assignment.fieldType != ValueType::Boolean || assignment.value.isLiteral()) {
        value(assignment.value);
        return;
    }
    add("CASE WHEN ");
    truth(assignment.value);
    add(" THEN -1 ELSE 0 END");
}

void Renderer::value(const Expression &expression)
{
    switch (expression.kind) {
    case ExpressionKind::Null:
        add("NULL");
        return;
    case ExpressionKind::Boolean:
        add(expression.number != 0 ? "-1" : "0");
        return;
    case ExpressionKind::Number:
    case ExpressionKind::Text:
        add("?");
        m_result.parameters.push_back(&expression);
        return;
    case ExpressionKind::Field:
        add(quotedName(expression.text));
        return;
    case ExpressionKind::Call:
        call(expression);
        return;
    case ExpressionKind::Arithmetic:
        arithmetic(expression);
        return;
    case ExpressionKind::Negate:
        add("(-");
        value(expression.operands[0]);
        add(")");
        return;
    default:
        add("(-");
        truth(expression);
        add(")");
        return;
    }
}

void Renderer::call(const Expression &expression)
{
    add(nameOf(expression.function));
    if (expression.operands.empty())
        return;
    add("(");
    value(expression.operands[0]);
    add(")");
}

void Renderer::arithmetic(const Expression &expression)
{
    // Two whole numbers would be divided without their fraction here.
    const bool divides = expression.op == Operator::Divide;
    add(divides ? "(1.0 * " : "(");
    value(expression.operands[0]);
    add(textOf(expression.op));
    value(expression.operands[1]);
    add(")");
}

// A key is made once for a row, where a collation would be asked at every comparison.
void Renderer::orderedValue(const Expression &expression)
{
    // Other programs store true as 1 or 255; for all of them it is -1, which goes before false.
    if (expression.type == ValueType::Boolean) {
        add("(-");
        truth(expression);
        add(")");
        return;
    }
    if (!expression.isText()) {
        value(expression);
        return;
    }
    add(SqlCipherNames::textKey);
    add("(");
    value(expression);
    add(")");
}

void Renderer::comparedValue(const Expression &expression, const Expression &other)
{
    value(expression);
    if (expression.type == ValueType::TextAnyCase || other.type == ValueType::TextAnyCase) {
        add(" COLLATE ");
        add(SqlCipherNames::anyCase);
    }
}

void Renderer::truth(const Expression &expression)
{
    switch (expression.kind) {
    case ExpressionKind::Null:
        add("NULL");
        return;
    case ExpressionKind::Boolean:
        add(expression.number != 0 ? "1" : "0");
        return;
    case ExpressionKind::Compare:
        comparison(expression);
        return;
    case ExpressionKind::AllOf:
        chain(expression.operands, " AND ");
        return;
    case ExpressionKind::AnyOf:
        chain(expression.operands, " OR ");
        return;
    case ExpressionKind::Not:
        add("(NOT ");
        truth(expression.operands[0]);
        add(")");
        return;
    case ExpressionKind::IsNull:
        add("(");
        value(expression.operands[0]);
        add(" IS NULL)");
        return;
    case ExpressionKind::InList:
        membership(expression);
        return;
    case ExpressionKind::InSelect:
        add("(");
        comparedValue(expression.operands[0], expression.select->columns[0]);
        add(" IN (");
        select(*expression.select);
        add("))");
        return;
    default:
        add("(");
        value(expression);
        add("<>0)");
        return;
    }
}

void Renderer::comparison(const Expression &expression)
{
    const Expression &left = expression.operands[0];
    const Expression &right = expression.operands[1];
    const bool asConditions = left.type == ValueType::Boolean || right.type == ValueType::Boolean;
    add("(");
    if (asConditions && isEquality(expression)) {
        truth(left);
        add(textOf(expression.op));
        truth(right);
    } else if (isEquality(expression)) {
        comparedValue(left, right);
        add(textOf(expression.op));
        value(right);
    } else {
        orderedValue(left);
        add(textOf(expression.op));
        orderedValue(right);
    }
    add(")");
}

void Renderer::membership(const Expression &expression)
{
    add("(");
    comparedValue(expression.operands[0], expression.operands[1]);
    const std::span<const Expression> values = std::span(expression.operands).subspan(1);
    if (values.size() > longestParameterList) {
        add(" IN (SELECT value FROM temp.listed WHERE list = " + std::to_string(m_result.longLists.size()) + "))");
        m_result.longLists.push_back(&expression);
        return;
    }
    const char *separator = " IN (";
    for (const Expression &candidate : values) {
        add(separator);
        value(candidate);
        separator = ", ";
    }
    add("))");
}

// Halved again and again: the engine refuses an expression that is deeper than 1000.
void Renderer::chain(std::span<const Expression> terms, const char *joint)
{
    if (terms.size() == 1) {
        truth(terms.front());
        return;
    }
    const std::size_t half = terms.size() / 2;
    add("(");
    chain(terms.first(half), joint);
    add(joint);
    chain(terms.subspan(half), joint);
    add(")");
}

} // namespace

std::string quotedName(const QString &name)
{
    const QByteArray utf8 = name.toUtf8();
    std::string quoted = "\"";
    for (const char character : utf8)
        quoted.append(character == '"' ? 2 : 1, character);
    return quoted += '"';
}

RenderedStatement renderSelect(const SelectStatement &select)
{
    Renderer renderer;
    renderer.select(select);
    return renderer.take();
}

RenderedStatement renderWithKeys(const SelectStatement &select)
{
    Renderer renderer;
    renderer.selectWithKeys(select);
    return renderer.take();
}

RenderedStatement renderStatement(const Statement &statement)
{
    Renderer renderer;
    if (const auto *select = std::get_if<SelectStatement>(&statement))
        renderer.select(*select);
    else if (const auto *insert = std::get_if<InsertStatement>(&statement))
        renderer.insert(*insert);
    else if (const auto *update = std::get_if<UpdateStatement>(&statement))
        renderer.update(*update);
    else if (const auto *deletion = std::get_if<DeleteStatement>(&statement))
        renderer.deletion(*deletion);
    return renderer.take();
}
