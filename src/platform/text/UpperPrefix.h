#pragma once

#include <QString>

/// Tells which texts begin with a term when both are upper-cased. Made once for a whole list.
class UpperPrefix
{
public:
    explicit UpperPrefix(const QString &term) : m_term(term.toUpper()) {}

    bool begins(const QString &text) const;

private:
    QString m_term;
};
