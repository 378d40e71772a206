#pragma once

#include <QString>
#include <QStringView>

enum class TokenKind
{
    Name,
    QuotedName,
    Number,
    Text,
    Symbol,
    End
};

struct Token
{
    TokenKind kind = TokenKind::End;
    /// The word, the name without its brackets, the literal without its quotes, or the symbol.
    QString text;

    bool isSymbol(QStringView symbol) const { return kind == TokenKind::Symbol && text == symbol; }
    /// A bracketed name is never a word of the language.
    bool isWord(QStringView word) const
    {
        return kind == TokenKind::Name && text.compare(word, Qt::CaseInsensitive) == 0;
    }
};

/// Cuts a statement into its words, one at a time.
class Tokens
{
public:
    /// The text must outlive the tokens. Raises BadSql when the text does not begin with a token.
    explicit Tokens(QStringView sql);

    const Token &current() const { return m_current; }
    /// Goes to the next token. Raises BadSql at a character that no statement holds.
    void advance();

private:
    void readName();
    void readQuotedName();
    void readNumber();
    void readText();
    void readSymbol();

    QStringView m_sql;
    qsizetype m_position = 0;
    Token m_current;
};
