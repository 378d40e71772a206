#include "platform/window/TextLimit.h"

namespace {

bool isPairEnd(QStringView text, qsizetype index)
{
    return index > 0 && text[index].isLowSurrogate() && text[index - 1].isHighSurrogate();
}

} // namespace

int codePoints(QStringView text)
{
    int count = 0;
    for (qsizetype index = 0; index < text.size(); ++index)
        count += isPairEnd(text, index) ? 0 : 1;
    return count;
}

QString firstCodePoints(const QString &text, int count)
{
    const int excess = codePoints(text) - count;
    return excess > 0 ? text.chopped(codeUnitsBefore(text, text.size(), excess)) : text;
}

qsizetype codeUnitsBefore(QStringView text, qsizetype position, int count)
{
    qsizetype begin = position;
    for (; count > 0 && begin > 0; --count)
        begin -= isPairEnd(text, begin - 1) ? 2 : 1;
    return position - begin;
}
