#pragma once

#include <QString>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

/// The tree of one statement, as the reader builds it and a storage engine takes it.
///
/// A field is known by its name as the file declares it once the statement is bound to the file's catalogue.

enum class ValueType
{
    Null,
    Number,
    Boolean,
    Text,
    TextAnyCase, ///< equal to another text without regard to case
};

enum class ExpressionKind
{
    Null,
    Number,
    Boolean,
    Text,
    Field,
    Call,
    Arithmetic,
    Compare,
    AllOf,
    AnyOf,
    Not,
    Negate,
    IsNull,
    InList,   ///< the first operand among the others
    InSelect, ///< the operand among the one column of a query
};

enum class Function
{
    Cdbl,
    Val,
    Cstr, ///< the plain text of a number; no window writes it, assignments to text fields need it
    Max,
    Min,
    Count,
    CountRows,
};

enum class Operator
{
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Add,
    Subtract,
    Multiply,
    Divide
};

struct SelectStatement;

struct Expression
{
    Expression();
    explicit Expression(ExpressionKind itsKind);
    Expression(Expression &&) noexcept;
    Expression &operator=(Expression &&) noexcept;
    ~Expression();

    static Expression ofNumber(double value);
    static Expression ofBoolean(bool value);
    static Expression ofText(const QString &value);
    static Expression ofField(const QString &name);
    static Expression ofCall(Function function, Expression argument);

    bool isLiteral() const;
    bool isAggregate() const;
    bool isText() const { return type == ValueType::Text || type == ValueType::TextAnyCase; }

    ExpressionKind kind = ExpressionKind::Null;
    ValueType type = ValueType::Null;
    Operator op = Operator::Equal;
    Function function = Function::Cdbl;
    /// Value of a number, and of a boolean: not 0 is true.
    double number = 0;
    /// A text literal, or the name of a field.
    QString text;
    std::vector<Expression> operands;
    std::unique_ptr<SelectStatement> select;
};

struct OrderTerm
{
    Expression value;
    bool descending = false;
};

struct SelectStatement
{
    QString table;
    /// Empty stands for all fields until the statement is bound.
    std::vector<Expression> columns;
    std::optional<Expression> where;
    std::vector<OrderTerm> order;
};

struct Assignment
{
    QString field;
    ValueType fieldType = ValueType::Text;
    Expression value;
};

struct InsertStatement
{
    QString table;
    std::vector<Assignment> values;
};

struct UpdateStatement
{
    QString table;
    std::vector<Assignment> values;
    std::optional<Expression> where;
};

struct DeleteStatement
{
    QString table;
    std::optional<Expression> where;
};

using Statement = std::variant<SelectStatement, InsertStatement, UpdateStatement, DeleteStatement>;
