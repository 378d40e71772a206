#include "windows/Amounts.h"

#include "configuration/Globais.h"
#include "platform/text/Numbers.h"
#include "platform/window/TextBox.h"

QString amountText(double value)
{
    return Format(value, u"####0.00");
}

QString amountText(const QString &text)
{
    const std::optional<double> number = readNumber(QStringView(text));
    return number ? amountText(*number) : text;
}

double shownAmount(double value)
{
    return Cdbl(amountText(value));
}

double shownAmount(const QString &text)
{
    return Cdbl(amountText(text));
}

QString withSymbol(double value)
{
    return SimboloMoeda + " " + amountText(value);
}

QString receiptAmount(double value)
{
    return SimboloMoeda + " " + Format(value, u"###,##0.00");
}

QString blanksAsZeros(QString text)
{
    return text.replace(' ', '0');
}

void replaceBlanks(TextBox &box)
{
    if (box.text().contains(' '))
        box.setText(blanksAsZeros(box.text()));
}

QString noChangeText()
{
    return SimboloMoeda + " 0" + "00";
}
