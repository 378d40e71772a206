#include "platform/jet/ExpressionParser.h"

#include "platform/base/Err.h"

#include <QScopeGuard>

#include <array>
#include <cmath>

namespace {

constexpr int deepestNesting = 200;
/// Terms of one sum or product; each lies one level deeper than the one before.
constexpr int longestArithmetic = 200;

constexpr std::array<QStringView, 19> reservedWords = {
    u"Select", u"Insert", u"Into", u"Values", u"Update", u"Set", u"Delete", u"From", u"Where", u"Order",
    u"By",     u"Asc",    u"Desc", u"And",    u"Or",     u"Not", u"In",     u"Is",   u"Null"};

struct Comparison
{
    QStringView symbol;
    Operator op;
};
constexpr std::array<Comparison, 6> comparisons = {{{u"=", Operator::Equal},
                                                    {u"<>", Operator::NotEqual},
                                                    {u"<", Operator::Less},
                                                    {u"<=", Operator::LessOrEqual},
                                                    {u">", Operator::Greater},
                                                    {u">=", Operator::GreaterOrEqual}}};

struct NamedFunction
{
    QStringView name;
    Function function;
};
constexpr std::array<NamedFunction, 5> functions = {{{u"Cdbl", Function::Cdbl},
                                                     {u"Val", Function::Val},
                                                     {u"Max", Function::Max},
                                                     {u"Min", Function::Min},
                                                     {u"Count", Function::Count}}};

Expression joined(ExpressionKind kind, Operator op, Expression left, Expression right)
{
    Expression result(kind);
    result.op = op;
    result.operands.reserve(2);
    result.operands.push_back(std::move(left));
    result.operands.push_back(std::move(right));
    return result;
}

Expression wrapped(ExpressionKind kind, Expression operand)
{
    Expression result(kind);
    result.operands.push_back(std::move(operand));
    return result;
}

} // namespace

SelectStatement ExpressionParser::select()
{
    SelectStatement statement;
    if (!takeWord(u"Select"))
        refuse();
    if (!takeSymbol(u"*")) {
        do {
            statement.columns.push_back(condition());
        } while (takeSymbol(u","));
    }
    if (!takeWord(u"From"))
        refuse();
    statement.table = name();
    if (takeWord(u"Where"))
        statement.where = condition();
    if (takeWord(u"Order")) {
        if (!takeWord(u"By"))
            refuse();
        do {
            statement.order.push_back(orderTerm());
        } while (takeSymbol(u","));
    }
    return statement;
}

OrderTerm ExpressionParser::orderTerm()
{
    OrderTerm term{condition(), false};
    if (takeWord(u"Desc"))
        term.descending = true;
    else
        takeWord(u"Asc");
    return term;
}

// A chain of any length is one node: a range of rows is deleted by tens of thousands of terms.
Expression ExpressionParser::condition()
{
    Expression first = conjunction();
    if (!m_tokens.current().isWord(u"Or"))
        return first;
    Expression chain = wrapped(ExpressionKind::AnyOf, std::move(first));
    while (takeWord(u"Or"))
        chain.operands.push_back(conjunction());
    return chain;
}

Expression ExpressionParser::conjunction()
{
    Expression first = negation();
    if (!m_tokens.current().isWord(u"And"))
        return first;
    Expression chain = wrapped(ExpressionKind::AllOf, std::move(first));
    while (takeWord(u"And"))
        chain.operands.push_back(negation());
    return chain;
}

Expression ExpressionParser::negation()
{
    int count = 0;
    while (takeWord(u"Not"))
        ++count;
    Expression operand = comparison();
    return count % 2 == 0 ? std::move(operand) : wrapped(ExpressionKind::Not, std::move(operand));
}

Expression ExpressionParser::comparison()
{
    Expression left = sum();
    for (const Comparison &candidate : comparisons) {
        if (takeSymbol(candidate.symbol))
            return joined(ExpressionKind::Compare, candidate.op, std::move(left), sum());
    }
    if (takeWord(u"Is"))
        return isNull(std::move(left));
    if (takeWord(u"In"))
        return in(std::move(left));
    if (takeWord(u"Not")) {
        if (!takeWord(u"In"))
            refuse();
        return wrapped(ExpressionKind::Not, in(std::move(left)));
    }
    return left;
}

Expression ExpressionParser::isNull(Expression operand)
{
    const bool negated = takeWord(u"Not");
    if (!takeWord(u"Null"))
        refuse();
    Expression test = wrapped(ExpressionKind::IsNull, std::move(operand));
    return negated ? wrapped(ExpressionKind::Not, std::move(test)) : std::move(test);
}

Expression ExpressionParser::in(Expression operand)
{
    skipSymbol(u"(");
    Expression test = wrapped(ExpressionKind::InList, std::move(operand));
    if (m_tokens.current().isWord(u"Select")) {
        if (++m_depth > deepestNesting)
            refuse();
        const auto leave = qScopeGuard([this] { --m_depth; });
        test.kind = ExpressionKind::InSelect;
        test.select = std::make_unique<SelectStatement>(select());
    } else {
        do {
            test.operands.push_back(sum());
        } while (takeSymbol(u","));
    }
    skipSymbol(u")");
    return test;
}

Expression ExpressionParser::sum()
{
    Expression left = product();
    for (int terms = 1; terms < longestArithmetic; ++terms) {
        if (takeSymbol(u"+"))
            left = joined(ExpressionKind::Arithmetic, Operator::Add, std::move(left), product());
        else if (takeSymbol(u"-"))
            left = joined(ExpressionKind::Arithmetic, Operator::Subtract, std::move(left), product());
        else
            return left;
    }
    refuse();
}

Expression ExpressionParser::product()
{
    Expression left = signedValue();
    for (int terms = 1; terms < longestArithmetic; ++terms) {
        if (takeSymbol(u"*"))
            left = joined(ExpressionKind::Arithmetic, Operator::Multiply, std::move(left), signedValue());
        else if (takeSymbol(u"/"))
            left = joined(ExpressionKind::Arithmetic, Operator::Divide, std::move(left), signedValue());
        else
            return left;
    }
    refuse();
}

Expression ExpressionParser::signedValue()
{
    bool negative = false;
    while (m_tokens.current().isSymbol(u"-") || m_tokens.current().isSymbol(u"+")) {
        negative ^= m_tokens.current().isSymbol(u"-");
        m_tokens.advance();
    }
    Expression operand = value();
    if (!negative)
        return operand;
    if (operand.kind == ExpressionKind::Number)
        return Expression::ofNumber(-operand.number);
    return wrapped(ExpressionKind::Negate, std::move(operand));
}

Expression ExpressionParser::value()
{
    if (++m_depth > deepestNesting)
        refuse();
    const auto leave = qScopeGuard([this] { --m_depth; });

    if (takeSymbol(u"(")) {
        Expression inner = condition();
        skipSymbol(u")");
        return inner;
    }
    const Token token = m_tokens.current();
    if (token.kind == TokenKind::Text) {
        m_tokens.advance();
        return Expression::ofText(token.literal());
    }
    if (token.kind == TokenKind::Number) {
        m_tokens.advance();
        const double number = token.text.toDouble();
        if (!std::isfinite(number))
            throw RunTimeError(ErrorNumber::Overflow, "A number is too large.");
        return Expression::ofNumber(number);
    }
    if (takeWord(u"True"))
        return Expression::ofBoolean(true);
    if (takeWord(u"False"))
        return Expression::ofBoolean(false);
    if (takeWord(u"Null"))
        return Expression(ExpressionKind::Null);

    const QString word = name();
    if (token.kind == TokenKind::QuotedName || !m_tokens.current().isSymbol(u"("))
        return Expression::ofField(word);
    for (const NamedFunction &known : functions) {
        if (word.compare(known.name, Qt::CaseInsensitive) == 0)
            return call(known.function);
    }
    refuse();
}

Expression ExpressionParser::call(Function function)
{
    skipSymbol(u"(");
    Expression result(ExpressionKind::Call);
    result.function = function;
    if (function == Function::Count && takeSymbol(u"*"))
        result.function = Function::CountRows;
    else
        result.operands.push_back(condition());
    skipSymbol(u")");
    return result;
}

QString ExpressionParser::name()
{
    const Token token = m_tokens.current();
    bool isName = token.kind == TokenKind::QuotedName;
    if (token.kind == TokenKind::Name) {
        isName = true;
        for (const QStringView word : reservedWords)
            isName = isName && !token.isWord(word);
    }
    if (!isName)
        refuse();
    m_tokens.advance();
    return token.text.toString();
}

bool ExpressionParser::takeWord(QStringView word)
{
    if (!m_tokens.current().isWord(word))
        return false;
    m_tokens.advance();
    return true;
}

bool ExpressionParser::takeSymbol(QStringView symbol)
{
    if (!m_tokens.current().isSymbol(symbol))
        return false;
    m_tokens.advance();
    return true;
}

void ExpressionParser::skipSymbol(QStringView symbol)
{
    if (!takeSymbol(symbol))
        refuse();
}

void ExpressionParser::refuse() const
{
    const Token &token = m_tokens.current();
    throw RunTimeError(ErrorNumber::BadSql, token.kind == TokenKind::End
                                                ? QString("The statement ends too early.")
                                                : QString("The statement is wrong at \"%1\".").arg(token.text));
}
