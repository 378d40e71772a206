#include "fuzz/JetText.h"

#include <QStringList>

#include <array>

namespace {
constexpr std::array operators{"=", "<>", "<", "<=", ">", ">=", "+", "-", "*", "/"};
constexpr std::array functions{"Cdbl", "Val", "Cstr", "Max", "Min", "Count", "Count"};

QString textOf(const Expression &expression);
QString textOf(const SelectStatement &select);

template <typename Parts, typename Write>
QString joined(const Parts &parts, const char *joint, Write write)
{
    QStringList texts;
    for (const auto &part : parts)
        texts.append(write(part));
    return texts.join(joint);
}

QString joined(const std::vector<Expression> &parts, const char *joint)
{
    return joined(parts, joint, [](const Expression &part) { return textOf(part); });
}

QString name(const QString &name)
{
    return '[' + name + ']';
}

QString textOf(const Expression &expression)
{
    const auto operand = [&](std::size_t i = 0) { return textOf(expression.operands.at(i)); };
    switch (expression.kind) {
    case ExpressionKind::Null:
        return "Null";
    case ExpressionKind::Boolean:
        return expression.number != 0 ? "True" : "False";
    case ExpressionKind::Number:
        return QString::number(expression.number, 'g', 17);
    case ExpressionKind::Text:
        return '\'' + QString(expression.text).replace("'", "''") + '\'';
    case ExpressionKind::Field:
        return name(expression.text);
    case ExpressionKind::Call:
        return QString(functions.at(static_cast<std::size_t>(expression.function))) + '(' +
               (expression.operands.empty() ? QString("*") : operand()) + ')';
    case ExpressionKind::Arithmetic:
    case ExpressionKind::Compare:
        return '(' + operand() + operators.at(static_cast<std::size_t>(expression.op)) + operand(1) + ')';
    case ExpressionKind::AllOf:
        return '(' + joined(expression.operands, " And ") + ')';
    case ExpressionKind::AnyOf:
        return '(' + joined(expression.operands, " Or ") + ')';
    case ExpressionKind::Not:
        return "(Not " + operand() + ')';
    case ExpressionKind::Negate:
        return "(-" + operand() + ')';
    case ExpressionKind::IsNull:
        return '(' + operand() + " Is Null)";
    case ExpressionKind::InList:
    case ExpressionKind::InSelect:
        break;
    }
    QStringList among;
    for (std::size_t i = 1; i < expression.operands.size(); ++i)
        among.append(operand(i));
    return '(' + operand() + " In (" + (expression.select ? textOf(*expression.select) : among.join(',')) + "))";
}

QString where(const std::optional<Expression> &condition)
{
    return condition ? " Where " + textOf(*condition) : QString();
}

QString textOf(const SelectStatement &select)
{
    const QString columns = select.columns.empty() ? QString("*") : joined(select.columns, ",");
    const QString order = joined(
        select.order, ",", [](const OrderTerm &term) { return textOf(term.value) + (term.descending ? " Desc" : ""); });
    return "Select " + columns + " From " + name(select.table) + where(select.where) +
           (order.isEmpty() ? QString() : " Order By " + order);
}

QString textOf(const InsertStatement &insert)
{
    return "Insert Into " + name(insert.table) + " (" +
           joined(insert.values, ",", [](const Assignment &part) { return name(part.field); }) + ") Values (" +
           joined(insert.values, ",", [](const Assignment &part) { return textOf(part.value); }) + ')';
}

QString textOf(const UpdateStatement &update)
{
    const auto assignment = [](const Assignment &part) { return name(part.field) + '=' + textOf(part.value); };
    return "Update " + name(update.table) + " Set " + joined(update.values, ",", assignment) + where(update.where);
}

QString textOf(const DeleteStatement &deletion)
{
    return "Delete From " + name(deletion.table) + where(deletion.where);
}
} // namespace

QString jetText(const Statement &statement)
{
    return std::visit([](const auto &kind) { return textOf(kind); }, statement);
}
