#include "platform/jet/Statement.h"

Expression::Expression() = default;
Expression::Expression(Expression &&) noexcept = default;
Expression &Expression::operator=(Expression &&) noexcept = default;
Expression::~Expression() = default;

Expression::Expression(ExpressionKind itsKind) : kind(itsKind) {}

Expression Expression::ofNumber(double value)
{
    Expression literal(ExpressionKind::Number);
    literal.type = ValueType::Number;
    literal.number = value;
    return literal;
}

Expression Expression::ofBoolean(bool value)
{
    Expression literal(ExpressionKind::Boolean);
    literal.type = ValueType::Boolean;
    literal.number = value ? -1 : 0;
    return literal;
}

Expression Expression::ofText(const QString &value)
{
    Expression literal(ExpressionKind::Text);
    literal.type = ValueType::Text;
    literal.text = value;
    return literal;
}

Expression Expression::ofField(const QString &name)
{
    Expression field(ExpressionKind::Field);
    field.text = name;
    return field;
}

Expression Expression::ofCall(Function function, Expression argument)
{
    Expression call(ExpressionKind::Call);
    call.function = function;
    call.type = function == Function::Cstr ? ValueType::Text : ValueType::Number;
    call.operands.push_back(std::move(argument));
    return call;
}

bool Expression::isLiteral() const
{
    return kind == ExpressionKind::Null || kind == ExpressionKind::Number || kind == ExpressionKind::Boolean ||
           kind == ExpressionKind::Text;
}

bool Expression::isAggregate() const
{
    return kind == ExpressionKind::Call && (function == Function::Max || function == Function::Min ||
                                            function == Function::Count || function == Function::CountRows);
}
