#include "platform/jet/Tokens.h"

#include "platform/base/Err.h"

namespace {

bool beginsName(QChar character)
{
    return character.isLetter() || character == u'_';
}

bool continuesName(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character == u'_';
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

} // namespace

Tokens::Tokens(QStringView sql) : m_sql(sql)
{
    advance();
}

void Tokens::advance()
{
    while (m_position < m_sql.size() && m_sql[m_position].isSpace())
        ++m_position;
    if (m_position == m_sql.size()) {
        m_current = {};
        return;
    }
    const QChar first = m_sql[m_position];
    const bool pointBeforeDigit = first == u'.' && m_position + 1 < m_sql.size() && isDigit(m_sql[m_position + 1]);
    if (beginsName(first))
        readName();
    else if (first == u'[')
        readQuotedName();
    else if (isDigit(first) || pointBeforeDigit)
        readNumber();
    else if (first == u'\'')
        readText();
    else
        readSymbol();
}

void Tokens::readName()
{
    const qsizetype start = m_position;
    while (m_position < m_sql.size() && continuesName(m_sql[m_position]))
        ++m_position;
    m_current = {TokenKind::Name, m_sql.mid(start, m_position - start)};
}

void Tokens::readQuotedName()
{
    const qsizetype end = m_sql.indexOf(u']', m_position);
    if (end <= m_position + 1)
        throw RunTimeError(ErrorNumber::BadSql, "A bracketed name is empty or has no end.");
    m_current = {TokenKind::QuotedName, m_sql.mid(m_position + 1, end - m_position - 1)};
    m_position = end + 1;
}

void Tokens::readNumber()
{
    const qsizetype start = m_position;
    const auto skipDigits = [this] {
        while (m_position < m_sql.size() && isDigit(m_sql[m_position]))
            ++m_position;
    };
    skipDigits();
    if (m_position < m_sql.size() && m_sql[m_position] == u'.') {
        ++m_position;
        skipDigits();
    }
    if (m_position < m_sql.size() && m_sql[m_position].toUpper() == u'E') {
        qsizetype exponent = m_position + 1;
        if (exponent < m_sql.size() && (m_sql[exponent] == u'+' || m_sql[exponent] == u'-'))
            ++exponent;
        if (exponent < m_sql.size() && isDigit(m_sql[exponent])) {
            m_position = exponent;
            skipDigits();
        }
    }
    m_current = {TokenKind::Number, m_sql.mid(start, m_position - start)};
}

void Tokens::readText()
{
    const qsizetype start = m_position + 1;
    qsizetype end = m_sql.indexOf(u'\'', start);
    while (end >= 0 && m_sql.mid(end + 1).startsWith(u'\''))
        end = m_sql.indexOf(u'\'', end + 2);
    if (end < 0)
        throw RunTimeError(ErrorNumber::BadSql, "A text has no closing apostrophe.");
    m_current = {TokenKind::Text, m_sql.mid(start, end - start)};
    m_position = end + 1;
}

void Tokens::readSymbol()
{
    const QChar symbol = m_sql[m_position];
    const QChar next = m_position + 1 < m_sql.size() ? m_sql[m_position + 1] : QChar();
    const bool isPair = (symbol == u'<' && (next == u'>' || next == u'=')) || (symbol == u'>' && next == u'=');
    if (!QStringView(u"(),;*=<>+-/").contains(symbol))
        throw RunTimeError(ErrorNumber::BadSql, QString("\"%1\" stands where no statement can hold it.").arg(symbol));
    m_current = {TokenKind::Symbol, m_sql.mid(m_position, isPair ? 2 : 1)};
    m_position += m_current.text.size();
}
