#include "platform/jet/OrChains.h"

#include <QHash>

namespace {

bool isFoldable(const Expression &term)
{
    return term.kind == ExpressionKind::Compare && term.op == Operator::Equal &&
           term.operands[0].kind == ExpressionKind::Field && term.operands[0].type != ValueType::Boolean &&
           term.operands[1].isLiteral();
}

} // namespace

void foldEqualities(Expression &chain)
{
    QHash<QString, std::size_t> lists;
    std::vector<Expression> terms;
    for (Expression &term : chain.operands) {
        if (!isFoldable(term)) {
            terms.push_back(std::move(term));
            continue;
        }
        const QString field = term.operands[0].text;
        const auto known = lists.constFind(field);
        if (known == lists.constEnd()) {
            lists.insert(field, terms.size());
            terms.push_back(std::move(term));
            continue;
        }
        Expression &list = terms[*known];
        list.kind = ExpressionKind::InList;
        list.operands.push_back(std::move(term.operands[1]));
    }
    chain.operands = std::move(terms);
}
