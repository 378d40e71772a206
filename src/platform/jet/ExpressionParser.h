#pragma once

#include "platform/jet/Statement.h"
#include "platform/jet/Tokens.h"

/// Reads the parts that statements share: names, conditions and queries.
class ExpressionParser
{
public:
    explicit ExpressionParser(Tokens &tokens) : m_tokens(tokens) {}

    SelectStatement select();
    Expression condition();
    /// A table's or field's name; a word of the language is none unless it stands in brackets.
    QString name();

    bool takeWord(QStringView word);
    bool takeSymbol(QStringView symbol);
    void skipSymbol(QStringView symbol);
    [[noreturn]] void refuse() const;

private:
    Expression conjunction();
    Expression negation();
    Expression comparison();
    Expression sum();
    Expression product();
    Expression signedValue();
    Expression value();
    Expression call(Function function);
    Expression isNull(Expression operand);
    Expression in(Expression operand);
    OrderTerm orderTerm();

    Tokens &m_tokens;
    /// Nested parentheses, queries and signs; bounded so that no text exhausts the stack.
    int m_depth = 0;
};
