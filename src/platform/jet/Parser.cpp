#include "platform/jet/Parser.h"

#include "platform/base/Err.h"
#include "platform/jet/ExpressionParser.h"
#include "platform/jet/Tokens.h"

namespace {

class StatementParser
{
public:
    explicit StatementParser(QStringView sql) : m_tokens(sql), m_expressions(m_tokens) {}

    Statement statement();

private:
    InsertStatement insert();
    UpdateStatement update();
    DeleteStatement deletion();
    std::optional<Expression> where();
    void skipWord(QStringView word);

    Tokens m_tokens;
    ExpressionParser m_expressions;
};

Statement StatementParser::statement()
{
    Statement result;
    if (m_tokens.current().isWord(u"Select"))
        result = m_expressions.select();
    else if (m_tokens.current().isWord(u"Insert"))
        result = insert();
    else if (m_tokens.current().isWord(u"Update"))
        result = update();
    else
        result = deletion();
    if (m_tokens.current().isSymbol(u";"))
        m_tokens.advance();
    if (m_tokens.current().kind != TokenKind::End)
        m_expressions.refuse();
    return result;
}

InsertStatement StatementParser::insert()
{
    InsertStatement statement;
    skipWord(u"Insert");
    skipWord(u"Into");
    statement.table = m_expressions.name();
    m_expressions.skipSymbol(u"(");
    do {
        statement.values.push_back({m_expressions.name(), ValueType::Text, {}});
    } while (m_expressions.takeSymbol(u","));
    m_expressions.skipSymbol(u")");
    skipWord(u"Values");
    m_expressions.skipSymbol(u"(");
    for (std::size_t i = 0; i < statement.values.size(); ++i) {
        if (i > 0)
            m_expressions.skipSymbol(u",");
        statement.values[i].value = m_expressions.condition();
    }
    m_expressions.skipSymbol(u")");
    return statement;
}

UpdateStatement StatementParser::update()
{
    UpdateStatement statement;
    skipWord(u"Update");
    statement.table = m_expressions.name();
    skipWord(u"Set");
    do {
        Assignment assignment;
        assignment.field = m_expressions.name();
        m_expressions.skipSymbol(u"=");
        assignment.value = m_expressions.condition();
        statement.values.push_back(std::move(assignment));
    } while (m_expressions.takeSymbol(u","));
    statement.where = where();
    return statement;
}

DeleteStatement StatementParser::deletion()
{
    DeleteStatement statement;
    skipWord(u"Delete");
    m_expressions.takeSymbol(u"*");
    skipWord(u"From");
    statement.table = m_expressions.name();
    statement.where = where();
    return statement;
}

std::optional<Expression> StatementParser::where()
{
    if (!m_expressions.takeWord(u"Where"))
        return std::nullopt;
    return m_expressions.condition();
}

void StatementParser::skipWord(QStringView word)
{
    if (!m_expressions.takeWord(word))
        m_expressions.refuse();
}

} // namespace

Statement parseStatement(QStringView sql)
{
    return StatementParser(sql).statement();
}
