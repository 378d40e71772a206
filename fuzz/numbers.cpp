#include "platform/text/Numbers.h"
#include "fuzz/Target.h"
#include "platform/text/RegionalSettings.h"

#include <QRegularExpression>

#include <cmath>
#include <cstring>

// Input: a text; its first eight bytes are a number, too.

namespace {
/// Beyond this the text of a number, at its 15 digits, may name a number that no double holds.
constexpr double largest = 1.79769313486231e308;
/// Up to here 15 digits hold an amount with its hundredths.
constexpr double largestAmount = 1e12;

bool isNear(double left, double right, double tolerance)
{
    // The smallest doubles have fewer digits than others.
    return std::abs(left - right) <= std::abs(right) * tolerance + 1e-320;
}

void checkReading(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    const std::string_view utf8(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    const std::optional<double> number = readNumber(QStringView(text));
    require(readNumber(utf8) == number, "a number reads the same in either encoding");
    require(!number || std::isfinite(*number), "a number that was read is finite");
    require(IsNumeric(text) == number.has_value(), "IsNumeric tells what Cdbl takes");
    require(errorOf([&] { Cdbl(text); }) == (number ? 0 : ErrorNumber::TypeMismatch), "Cdbl refuses what is no number");

    static const QRegularExpression leading(R"(^[ \t-\r]*([+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?))");
    bool fits = false;
    double expected = leading.match(text).captured(1).toDouble(&fits);
    if (!fits && !std::isfinite(expected))
        expected = 0;
    require(isNear(Val(QStringView(text)), expected, 1e-15), "Val takes the longest leading number");
    require(Val(utf8) == Val(QStringView(text)), "Val reads the same in either encoding");
}

void checkAmount(double number)
{
    const RegionalSettings &region = RegionalSettings::current();
    const QString text = Format(number, u"####0.00");
    require(text.size() >= 4 && text[text.size() - 3] == region.decimalSeparator, "an amount has two places");
    QString digits = text;
    digits.remove(region.decimalSeparator);
    require(digits.count('0') < digits.size() || !text.startsWith('-'), "nothing has no sign");
    const QString opposite = Format(-number, u"####0.00");
    require(opposite == text || opposite == '-' + text || text == '-' + opposite, "the sign changes no digit");
    require(Format(number, u"###,##0.00").remove(region.thousandsSeparator) == text, "thousands change no digit");
    require(FormatCurrency(number, 2).contains(Format(std::abs(number), u"#,##0.00")), "currency shows the amount");
    const QString whole = Format(number, u"00000");
    require(whole.size() >= 5 && !whole.contains(region.decimalSeparator), "a code has five digits and no fraction");
    if (std::abs(number) > largestAmount)
        return;
    require(std::abs(Cdbl(text) - number) <= 0.005 * (1 + 1e-9) + std::abs(number) * 1e-14, "an amount is rounded");
    require(Format(Cdbl(text), u"####0.00") == text, "an amount that was read back is the same");
    require(std::abs(Cdbl(whole) - number) <= 0.5 * (1 + 1e-9) + std::abs(number) * 1e-14, "a code is rounded");
}

void checkWriting(double number)
{
    if (!std::isfinite(number)) {
        require(errorOf([&] { Cstr(number); }) == ErrorNumber::Overflow, "an infinite number has no text");
        require(errorOf([&] { Format(number, u"0.00"); }) == ErrorNumber::Overflow, "nor a format");
        return;
    }
    checkAmount(number);
    const QString text = Cstr(number);
    if (std::abs(number) > largest)
        return;
    require(isNear(Cdbl(text), number, 6e-15), "a number's text is the number");
    require(Cstr(Cdbl(text)) == text, "a number that was read back is written the same");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(Input(data, size).rest());
    double raw = 0;
    if (size >= sizeof raw)
        std::memcpy(&raw, data, sizeof raw);
    for (const char *region : regions) {
        RegionalSettings::use(QLocale(region));
        checkReading(text);
        for (const double number : {raw, Val(QStringView(text)), readNumber(QStringView(text)).value_or(0)})
            checkWriting(number);
    }
    return 0;
}
