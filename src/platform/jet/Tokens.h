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
    /// The word, the name without its brackets, the literal without its outer quotes, or the symbol, as the statement
    /// writes it: nothing is copied for a token that is only looked at.
    QStringView text;

    /// No symbol has more than two characters.
    bool isSymbol(QStringView symbol) const
    {
        return kind == TokenKind::Symbol && text.size() == symbol.size() && text.front() == symbol.front() &&
               text.back() == symbol.back();
    }
    /// A bracketed name is never a word of the language. Case changes no length, and most words differ in theirs.
    bool isWord(QStringView word) const
    {
        return kind == TokenKind::Name && text.size() == word.size() && text.compare(word, Qt::CaseInsensitive) == 0;
    }
    /// What a text literal stands for: an apostrophe within it is written twice.
    QString literal() const { return text.toString().replace(QLatin1StringView("''"), QLatin1StringView("'")); }
};

/// Cuts a statement into its words, one at a time.
class Tokens
{
public:
    /// The text must outlive every token. Raises BadSql when the text does not begin with a token.
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
